#pragma once

// The classes of blocks.

extern "C" {
extern void *_NSConcreteStackBlock[32];
}
