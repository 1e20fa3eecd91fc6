// Broadcast ephemerides.
#pragma once

#include "rtcm/bits.h"

namespace navframe::rtcm {

// The Keplerian messages of GPS 1019, BeiDou 1042, QZSS 1044 and Galileo 1046. Angles are in
// semicircles, as the messages carry them. What a message does not have, or is too short for, is 0.
struct KeplerEphemeris {
  double satellite;
  double week;  // of the system, as broadcast (GPS and QZSS modulo 1024)
  double accuracy;
  double codesOnL2;
  double issueOfData;
  double issueOfClock;
  double toc;     // s of the week
  double af2;     // s/s^2
  double af1;     // s/s
  double af0;     // s
  double crs;     // m
  double deltaN;  // semicircles/s
  double m0;
  double cuc;  // rad
  double eccentricity;
  double cus;                // rad
  double sqrtSemiMajorAxis;  // sqrt(m)
  double toe;                // s of the week
  double cic;                // rad
  double omega0;
  double cis;  // rad
  double i0;
  double crc;  // m
  double omega;
  double omegaDot;       // semicircles/s
  double idot;           // semicircles/s
  double groupDelay[2];  // s
  double health[2];
  double dataInvalid[2];
  double l2pDataFlag;
  double fitInterval;
};

// GLONASS 1020. What a message is too short for is 0.
struct GlonassEphemeris {
  double satellite;
  double channel;  // -7 to 24
  double almanacHealth;
  double almanacHealthAvailable;
  double p1;
  double frameHour;
  double frameMinute;
  double frameSecond;
  double unhealthy;
  double p2;
  double tb;               // s of the day, UTC + 3 h
  double velocity[3];      // km/s
  double position[3];      // km, PZ-90
  double acceleration[3];  // km/s^2
  double p3;
  double gammaN;
  double p;
  double lnThird;
  double tauN;       // s
  double deltaTauN;  // s
  double age;        // days
  double p4;
  double ft;
  double nt;  // day of the four-year interval
  double m;
  double additionalData;
  double na;
  double tauC;  // s
  double n4;
  double tauGps;  // s
  double lnFifth;
};

KeplerEphemeris DecodeGpsEphemeris(const Frame& frame);
KeplerEphemeris DecodeBeiDouEphemeris(const Frame& frame);
KeplerEphemeris DecodeQzssEphemeris(const Frame& frame);
KeplerEphemeris DecodeGalileoEphemeris(const Frame& frame);
GlonassEphemeris DecodeGlonassEphemeris(const Frame& frame);

}  // namespace navframe::rtcm
