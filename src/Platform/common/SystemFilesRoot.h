#pragma once

#include <QString>

/// The folder with the system files that ship with the program, for systems that have none of their
/// own: "share/keldra/system" beside the folder of the executable.
QString systemFilesRoot();
