#pragma once

// This system's equivalent requests, so that the backend can query a device of this system.

#include <linux/fs.h>

#define DKIOCGETPHYSICALBLOCKSIZE BLKPBSZGET
#define DKIOCGETBLOCKSIZE BLKSSZGET
