#pragma once

/// Whether the session has started this program at login: the session manager itself, as its child or with an
/// identity for it, or systemd on its behalf, as a unit made of the autostart entry. A person's start comes from a
/// panel, a shell or a terminal.
bool wasStartedBySession();
