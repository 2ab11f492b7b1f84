#pragma once

// An owner for what the X server's library hands out in C's way.

#include <cstdlib>
#include <memory>

struct FreeReply {
  void operator()(void *memory) const { std::free(memory); }
};

template <typename Reply>
using XcbReply = std::unique_ptr<Reply, FreeReply>;
