#pragma once

class Desktop;
class Platform;

/// Shows the program and runs until it is quit; at once where another instance runs already, which
/// shows itself then. The exit status is the process's.
int runApplication(Platform &platform, Desktop &desktop);

/// Whether the session allows what Qt and the desktop need; if not, it is said why. Called before anything
/// else, for Qt breaks off without a word.
bool mayOpenEnoughFiles();

/// What our QApplication is set up with, its language among it; called once, after it is made and before
/// anything of ours is.
void configureApplication();
