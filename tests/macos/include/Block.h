#pragma once

// The classes that a block says it is of.

extern "C" {
extern void *_NSConcreteStackBlock[32];
}
