// Many members compared at once, with the names of those that differ.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string_view>

namespace navframe::test {

// Numbers of any type, but for integers above 2^53.
template <class... T>
std::array<double, sizeof...(T)> Numbers(T... values) {
  return {static_cast<double>(values)...};
}

// `names` is the list of the members as the test has it.
template <std::size_t Count>
testing::AssertionResult SameMembers(std::string_view names, const std::array<double, Count>& seen,
                                     const std::array<double, Count>& wanted) {
  auto result = seen == wanted ? testing::AssertionSuccess() : testing::AssertionFailure();
  for (std::size_t i = 0; i < Count; ++i) {
    const std::size_t end = names.find(", ");
    if (seen[i] != wanted[i]) {
      result << names.substr(0, end) << " is " << testing::PrintToString(seen[i]) << ", not "
             << testing::PrintToString(wanted[i]) << "\n";
    }
    names.remove_prefix(end == names.npos ? names.size() : end + 2);
  }
  return result;
}

}  // namespace navframe::test

// EXPECT_MEMBERS((seen.tow, seen.week), (4711, 2325));
#define EXPECT_MEMBERS(members, wanted)                                                  \
  EXPECT_TRUE(::navframe::test::SameMembers(#members, ::navframe::test::Numbers members, \
                                            ::navframe::test::Numbers wanted))
