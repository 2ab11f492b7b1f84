#pragma once

/// Whether the session has started this program at login: as a child of the session manager, with an identity
/// from it, or by systemd as a unit for the autostart entry. When the user starts the program, the parent is a
/// panel, a shell or a terminal.
bool wasStartedBySession();
