#pragma once

// The classes that a block says it is of.

extern "C" {
extern void *_NSConcreteGlobalBlock[32];
extern void *_NSConcreteStackBlock[32];
}
