#pragma once

// The requests by which this system's own devices tell the same, so that the backend can ask one.

#include <linux/fs.h>

#define DKIOCGETPHYSICALBLOCKSIZE BLKPBSZGET
#define DKIOCGETBLOCKSIZE BLKSSZGET
