#include "asciilog/log_names.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <sstream>

#include "asciilog/log_facts.h"
#include "asciilog/words.h"

namespace navframe::test {
namespace {

using Entries = std::vector<std::pair<std::string, std::uint32_t>>;

Entries EntriesOf(std::string_view list) {
  Entries entries;
  std::istringstream in{std::string(list)};
  for (std::pair<std::string, std::uint32_t> entry; in >> entry.first >> entry.second;) {
    entries.push_back(entry);
  }
  return entries;
}

TEST(LogNames, LongestNameThatTheLineBeginsWithGivesItsNumber) {
  const Entries names = EntriesOf(NamesOfLogs);
  ASSERT_EQ(names.size(), 127U);
  const auto numberOf = [&names](std::string_view line) {
    std::pair<std::size_t, std::uint32_t> longest;
    for (const auto& [name, number] : names) {
      if (line.starts_with(name)) longest = std::max(longest, {name.size(), number});
    }
    return longest.second;
  };
  for (const auto& [name, number] : names) {
    EXPECT_EQ(asciilog::IdentifierOf(name), number) << name;
    const std::string head = name.substr(0, name.size() - 1);
    const char next = name.back() == ',' ? 'B' : ',';
    for (const std::string& line : {name + "A,1", name + ",1", head, head + next, head + "A_1,"}) {
      EXPECT_EQ(asciilog::IdentifierOf(line), numberOf(line)) << line;
    }
  }
}

// Rows that repeat an earlier name are there too, and give nothing of their own.
TEST(LogNames, TableHasNoOtherNames) {
  std::map<std::string_view, std::uint32_t> names;
  const Entries entries = EntriesOf(NamesOfLogs);
  for (const auto& [name, number] : entries) names[name] = number;
  for (const asciilog::LogName& row : asciilog::LogNames) {
    EXPECT_TRUE(names.contains(row.Prefix())) << row.text;
  }
}

using ValueOf = std::int64_t (*)(std::string_view);
template <auto Read>
constexpr ValueOf As = [](std::string_view word) { return static_cast<std::int64_t>(Read(word)); };

const std::map<std::string_view, ValueOf> WordReaders = {
    {"time status", As<asciilog::TimeStatus>},
    {"solution status", As<asciilog::SolutionStatus>},
    {"position type", As<asciilog::PositionType>},
    {"satellite status", As<asciilog::SatelliteStatus>},
    {"extended position type", As<asciilog::ExtendedPositionType>},
    {"datum", As<asciilog::Datum>},
    {"port", As<asciilog::Port>},
    {"inertial status", As<asciilog::InertialStatus>},
    {"time validity", As<asciilog::TimeValidity>},
    {"component type", As<asciilog::ComponentType>},
    {"boolean", As<asciilog::Boolean>},
    {"satellite system", As<asciilog::SatelliteSystem>},
    {"time reference", As<asciilog::TimeReferenceOf>},
};

TEST(LogWords, GiveTheirValuesAndOtherTextsNone) {
  ASSERT_EQ(std::size(WordsOfLogs), WordReaders.size());
  for (const auto& [set, list] : WordsOfLogs) {
    const ValueOf valueOf = WordReaders.at(set);
    std::map<std::string, std::uint32_t> words;
    for (const auto& entry : EntriesOf(list)) words.insert(entry);  // the first of equal words
    EXPECT_EQ(valueOf(""), 0) << set;
    for (const auto& [word, value] : words) {
      EXPECT_EQ(valueOf(word), value) << set << " " << word;
      if (set == "satellite status") continue;
      std::string lower = word;
      for (char& c : lower) c = static_cast<char>(std::tolower(c));
      for (const std::string& other :
           {word.substr(1), word.substr(0, word.size() - 1), word + "_", " " + word, lower}) {
        EXPECT_EQ(valueOf(other), words.contains(other) ? words[other] : 0) << set << " " << other;
      }
    }
  }
}

TEST(LogWords, FirstSatelliteStatusThatOccursInTheFieldCounts) {
  const Entries words = EntriesOf(WordsOfLogs[3].words);
  ASSERT_EQ(words.back().first, "NOAMBIGUITY");
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i].first;
    for (const std::string& part : {word.substr(0, word.size() - 1), word.substr(1)}) {
      const bool hasNa = part.find("NA") != std::string::npos;
      EXPECT_EQ(asciilog::SatelliteStatus(part), hasNa ? 99 : 0) << part;
    }
    for (std::size_t later = i; later < words.size(); ++later) {
      const std::string field = "x" + words[later].first + " " + word + "y";
      EXPECT_EQ(asciilog::SatelliteStatus(field), words[i].second) << field;
    }
  }
}

}  // namespace
}  // namespace navframe::test
