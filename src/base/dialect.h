// Where streams read otherwise than the exports do.
#pragma once

namespace navframe {

// Each switch is read in one place. All are off for the exports and for streams in their dialect;
// docs/compatibility.md has a row for each.
struct Dialect {
  bool wholeTimes = false;           // times of day of sentences with any number of decimals
  bool yearsFrom1980 = false;        // two digits of a year are those of 1980 to 2079
  bool keepsSentences = false;       // a field that does not convert leaves its member unknown
  bool needsHemisphere = false;      // a coordinate without its letter is unknown, not negative
  bool wholeGsv = false;             // all satellites and numbers of satellites in view
  bool gsaSystemByView = false;      // the system of a mixed GSA by the satellites in view
  bool trueClock = false;            // calendar, weeks and zones as they are, nearest day and week
  bool clockNeedsTow = false;        // messages without a time of week leave the clock alone
  bool longRawMeasurements = false;  // raw measurements of up to 255 signals
  bool standardRecords = false;      // records that hold all that their messages say
  bool silentCheckErrors = false;    // UBX frames with a wrong checksum give no record
  bool tagBlocks = false;            // recognised whole
  bool asciiLogs = false;            // "#" lines are looked for
  bool hexLogStatus = false;         // status and reserved field of log headers
  bool strongerFramesWin = false;    // over weaker ones that hold by chance
};

inline constexpr Dialect LegacyDialect = {};
inline constexpr Dialect StandardDialect = {.wholeTimes = true,
                                            .yearsFrom1980 = true,
                                            .keepsSentences = true,
                                            .needsHemisphere = true,
                                            .wholeGsv = true,
                                            .gsaSystemByView = true,
                                            .trueClock = true,
                                            .clockNeedsTow = true,
                                            .longRawMeasurements = true,
                                            .standardRecords = true,
                                            .silentCheckErrors = true,
                                            .tagBlocks = true,
                                            .asciiLogs = true,
                                            .hexLogStatus = true,
                                            .strongerFramesWin = true};

}  // namespace navframe
