// Records as lines of "member=value", by the members that the catalogue has of them, so that a
// failed comparison shows which members differ. No byte of a record goes without being compared.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "catalogue/layouts.h"
#include "support/streams.h"

namespace navframe::test {

// What has no line: of numbers either all ones of an integer and the library's NaN, which stand for
// what is not known, or zeros. Of tags, padding and reserved members that begin as 0 it is 0 in
// either case, and of texts the empty one.
enum class LeftOut { Unknown, Zero };

// A member of a member is "a.b", an element of an array "a[1]". Of a GPSTIME week and time of week
// are one line, and so is the time of day of a UTCTIME; its flag has one when it does not say
// whether there is a time.
std::string MembersOf(const NavframeRecord& layout, const void* record, LeftOut leftOut);

template <class T>
std::string MembersOf(const T& record) {
  return MembersOf(catalogue::RecordOf<T>, &record, LeftOut::Unknown);
}
template <class T>
std::string NonZeroMembersOf(const T& record) {
  return MembersOf(catalogue::RecordOf<T>, &record, LeftOut::Zero);
}

// Of the only record, which is of this kind; "none" when it is not or there is no or more than one.
std::string MembersOf(const std::vector<Record>& records, std::uint32_t kind,
                      LeftOut leftOut = LeftOut::Unknown);

// The form of MembersOf, of "member=value" parted by blanks.
std::string Lines(std::string pairs);

// "name[0]=value " for each of `count` values that count down.
std::string Down(const std::string& name, int first, int count);

}  // namespace navframe::test
