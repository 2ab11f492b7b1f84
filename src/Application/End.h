#pragma once

class AppDelegate;

/// From now on a signal, the end of the session and the platform's own Quit are handled like the Quit
/// button.
void quitWithTheSystem(AppDelegate &delegate);

/// The process exits five seconds from now at the latest, whatever it waits for by then.
void endSoon();
