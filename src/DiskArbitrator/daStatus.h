#pragma once

#include "Platform/Dissenter.h"

/// A dissenter's status in words: the C library's own message for a Unix error, else a fixed
/// phrase, "unknown error" for what is not in the table (success is not). Never null; valid until
/// the next call.
const char *daStatus(DissenterStatus status);
