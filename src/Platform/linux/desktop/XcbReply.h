#pragma once

// Ownership of what xcb returns as C pointers, and the look-up of atoms.

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

struct FreeReply {
  void operator()(void *memory) const { std::free(memory); }
};

template <typename Reply>
using XcbReply = std::unique_ptr<Reply, FreeReply>;

/// The server's number for a name; XCB_ATOM_NONE if the server does not answer.
inline xcb_atom_t atom(xcb_connection_t *server, std::string_view name) {
  const auto cookie =
      xcb_intern_atom(server, false, static_cast<uint16_t>(name.size()), name.data());
  const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server, cookie, nullptr));
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}
