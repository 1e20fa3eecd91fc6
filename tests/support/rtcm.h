// Builds RTCM 3 frames, bit by bit and with a bitwise checksum: nothing is shared with the decoder.
#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <vector>

#include "support/streams.h"

namespace navframe::test {

// Bits of a payload, most significant first.
class BitWriter {
 public:
  BitWriter& Put(std::uint64_t value, int width);
  BitWriter& PutSigned(std::int64_t value, int width) {
    return Put(static_cast<std::uint64_t>(value), width);
  }
  const Bytes& Done() const { return bytes_; }  // filled up with zero bits

 private:
  Bytes bytes_;
  int used_ = 0;  // bits of the last byte
};

std::uint32_t BitwiseCrc24q(const std::uint8_t* bytes, std::size_t length);

// Header, payload, checksum.
Bytes RtcmFrame(const Bytes& payload);
inline Bytes RtcmFrame(const BitWriter& payload) { return RtcmFrame(payload.Done()); }

// The raw fields of a cell and of a satellite, as they stand in the message.
struct MsmCellFields {
  std::int64_t finePseudorange = 0;
  std::int64_t finePhase = 0;
  std::uint32_t lock = 0;
  std::uint32_t halfCycle = 0;
  std::uint32_t cn0 = 0;
  std::int64_t fineRate = 0;
};
struct MsmSatelliteFields {
  std::uint32_t rangeMs = 70;
  std::uint32_t rangeModulo = 0;
  std::int64_t roughRate = 0;
};

// What a cell was built from.
struct MsmTruth {
  int satellite;
  int signal;
  double pseudorange;  // metres
  double phaseRange;   // metres
  double rate;         // m/s
  std::uint32_t lock;  // indicator
  std::uint32_t halfCycle;
  double cn0;
};

// One message in the making. The kind is the last digit of the number, 4 to 7.
struct MsmMessage {
  std::uint32_t number = 1077;
  std::uint32_t epoch = 1000;  // 30 bits as they stand in the message
  bool more = false;           // multiple-message bit
  std::vector<int> satellites;
  std::vector<int> signals;
  std::vector<bool> cells;  // by satellite, then signal; all of them when empty
  std::vector<MsmSatelliteFields> satelliteFields;
  std::vector<MsmCellFields> cellFields;  // one per set cell

  int Kind() const { return static_cast<int>(number % 10); }
  // Sizes the vectors of fields to the masks.
  MsmMessage& Sized();
  Bytes Payload() const;
  Bytes Frame() const { return RtcmFrame(Payload()); }
};

// Numbers of a bit of a kind's fields.
struct MsmWidths {
  int pseudorange, phase, lock, cn0, rate;
  double pseudorangeMetres, phaseMetres;  // of one unit
};
MsmWidths WidthsOf(int kind);

// Builds a message of random masks and values and writes down what it was built from.
MsmMessage RandomMsm(std::uint32_t number, std::mt19937& random, std::vector<MsmTruth>& truth,
                     int satelliteCount, int signalCount);

}  // namespace navframe::test
