#pragma once

class AppDelegate;

/// From now on a signal, the end of the session and the platform's own Quit ask for the same end as the
/// Quit button.
void quitWithTheSystem(AppDelegate &delegate);

/// The process is gone five seconds from now, whatever it waits for by then, unless it ends before.
void endSoon();
