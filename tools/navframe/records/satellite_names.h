// Satellites as RINEX calls them, whatever numbers a message has for them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "navframe/catalogue.h"
#include "records/value_text.h"

namespace navframe::tool {

inline constexpr std::size_t LongestSatelliteName = 16;

// "G05": the letter of the system, and the number in it.
struct SatelliteName {
  char system = '\0';        // none: not known
  std::uint32_t number = 0;  // 0: not known, or every satellite of the system

  // Writes it, in LongestSatelliteName bytes at most, and returns its end.
  char* Put(char* to) const;
};

// "G05", "E" for all of a system, "S120" and "J193" too. Nothing for others.
std::optional<SatelliteName> ParseSatellite(const std::string& text);

// Where a record tells satellites.
class SatelliteMembers {
 public:
  // `outer` is the record whose list has this one, and tells its system where this does not.
  explicit SatelliteMembers(const NavframeKind& kind);
  SatelliteMembers(const NavframeKind& kind, const NavframeRecord& entry);

  // The satellite of an entry of the record at `record`, or of the record itself.
  SatelliteName Read(const void* entry, const void* record, std::uint32_t index = 0) const;

  const NavframeMember* System() const { return system_; }
  const NavframeMember* Number() const { return number_; }
  const NavframeMember* Code() const { return code_; }  // of the signal

 private:
  enum class Numbering : std::uint8_t { InSystem, Nmea, Ubx, UbxOverAll, Log };

  void Find(const NavframeRecord& record);
  void NoteValues();
  char ReadSystem(const void* entry, const void* record) const;

  const NavframeMember* system_ = nullptr;
  std::optional<ValueText> systemValue_;
  std::optional<ValueText> numberValue_;
  std::array<char, 16> letters_{};  // of the first values of systems
  const NavframeMember* number_ = nullptr;
  const NavframeMember* code_ = nullptr;
  const NavframeMember* tracking_ = nullptr;
  Numbering numbering_ = Numbering::InSystem;
  bool systemIsOuter_ = false;
  char systemOfKind_ = '\0';
};

}  // namespace navframe::tool
