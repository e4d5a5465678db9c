// The library's notifications as they come in: the entries are wrapped when the tests are linked.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace dakvm::test {

struct Notification {
  int32_t code, index;
  const void* arrays[4];
  std::string name;
  uint64_t stored;  // the element's result when it was notified
  bool next_is_stored;
};
extern std::vector<Notification> notifications;

// The length of the arrays in use; 0 while notifications are not looked at.
extern int32_t notified_length;

constexpr unsigned char untouched = 0xa5;  // what destinations hold before a call

}  // namespace dakvm::test
