// What info and doctor tell, as lists and tables.
const Total = (list) => list.reduce((sum, one) => sum + one, 0);

function Span(time) {
  const last =
    time.last_utc !== null && Utc(time.first_utc).slice(0, 10) === Utc(time.last_utc).slice(0, 10)
      ? ClockOf(time.last_utc)
      : Utc(time.last_utc);
  if (time.first_utc !== null) return `${Utc(time.first_utc)} to ${last} UTC`;
  return time.duration_s === null ? "no time of its own" : `${time.known}, no date`;
}

const Causes = (doctor) => doctor.findings.filter((one) => !one.harmless).length;
function Verdict(info, doctor) {
  if (!info.recognised) {
    return ["none", info.size_bytes === 0 ? "Empty" : "Nothing was recognised"];
  }
  if (doctor.healthy) return ["good", "Healthy"];
  return ["bad", `Not healthy, for ${Plural(Causes(doctor), "reason")}`];
}

function Heading(info, doctor) {
  const [state, verdict] = Verdict(info, doctor);
  const facts = [
    Span(info.time),
    info.time.duration_s === null ? null : Duration(info.time.duration_s),
    Bytes(info.size_bytes),
  ];
  const name = info.source.replace(/^.*\/(?=[^/])/, "");
  if (name !== info.source) facts.push(info.source);
  return Element(
    "header",
    {},
    Element("p", {class: "name"}, "Recording"),
    Element("h1", {}, name),
    Element("p", {class: "facts"}, facts.filter((one) => one !== null).join(" · ")),
    Element("p", {class: `verdict ${state}`}, verdict),
  );
}

function Findings(doctor, damage) {
  return doctor.findings.map((finding, i) =>
    Element(
      "li",
      {class: finding.harmless ? "good" : "bad"},
      Element("p", {}, damage[i].sentence),
      finding.first.length === 0
        ? null
        : Element(
            "details",
            {},
            Element(
              "summary",
              {},
              finding.places > finding.first.length
                ? `The first ${Count(finding.first.length)} of ${Plural(finding.places, "place")}`
                : Plural(finding.places, "place"),
            ),
            Table(
              damage[i].sentence,
              [
                ["byte", ([one]) => Count(one.offset_bytes), true],
                ["bytes", ([one]) => (one.length_bytes ? Count(one.length_bytes) : ""), true],
                ["time (UTC)", ([one]) => Utc(one.utc ?? null)],
                ["evidence", ([, evidence]) => evidence],
              ],
              finding.first.map((one, j) => [one, damage[i].evidence[j]]),
            ),
          ),
    ),
  );
}

// Figures that tell most of a recording at a glance.
function Figures(info) {
  const figures = [];
  const add = (name, value, more) => figures.push([name, value, more]);
  const frames = Total(info.protocols.map((one) => one.frames));
  const {time, position} = info;
  if (time.duration_s !== null) {
    add(
      "Duration",
      Duration(time.duration_s),
      time.first_gps_week === null
        ? Span(time)
        : `GPS week ${time.first_gps_week}, ${Fixed(time.first_gps_tow_s, 0)} s`,
    );
  }
  add(
    "Frames",
    Count(frames),
    `of ${Plural(info.messages.length, "message")} by ` +
      (info.protocols.map((one) => one.protocol).join(", ") || "no protocol"),
  );
  const seen = info.satellites;
  if (seen.satellites.length > 0) {
    const systems = [...new Set(seen.systems.map((one) => one.system))];
    add("Satellites", Count(seen.satellites.length), systems.join(", "));
    const measured = seen.systems.filter((one) => one.mean_cn0_dbhz !== null);
    const all = Total(measured.map((one) => one.count));
    if (all > 0) {
      add(
        "Mean C/N0",
        `${(Total(measured.map((one) => one.mean_cn0_dbhz * one.count)) / all).toFixed(1)} dB-Hz`,
        seen.signals.length > 0 ? Plural(seen.signals.length, "signal") : `by ${seen.from}`,
      );
    }
  }
  if (position.fixes > 0) {
    const {mean, standard_deviation: spread} = position;
    add(
      "Position",
      `${mean.latitude_deg.toFixed(7)}°, ${mean.longitude_deg.toFixed(7)}°`,
      `± ${Fixed(spread.east_m, 3)} m east, ${Fixed(spread.north_m, 3)} m north` +
        (spread.up_m === null ? "" : `, ${Fixed(spread.up_m, 3)} m up`),
    );
    const shares = Object.entries(position.quality_shares).sort(([, a], [, b]) => b - a);
    add(
      "Fixes",
      Count(position.fixes),
      shares.map(([name, share]) => `${Percent(share)} ${name}`).join(", "),
    );
  }
  const outside = info.outside_frames;
  add(
    "In no frame",
    Bytes(outside.bytes),
    info.size_bytes === 0 ? "" : `${Percent(outside.bytes / info.size_bytes, 2)} of the bytes`,
  );
  return Element(
    "dl",
    {class: "figures"},
    figures.map(([name, value, more]) =>
      Element(
        "div",
        {class: name === "Position" ? "wide" : null},
        Element("dt", {}, name),
        Element("dd", {}, value),
        more ? Element("dd", {class: "more"}, more) : null,
      ),
    ),
  );
}

// Without a date times count from the beginning.
function RateColumns({time}) {
  const unit = time.first_utc === null ? "s" : "UTC";
  const moment = (utc, seconds) => (unit === "s" ? Fixed(seconds, 3) : ClockOf(utc));
  return [
    ["count", (one) => Count(one.count), true],
    ["Hz", (one) => Fixed(one.rate_hz, 3), true],
    [`first (${unit})`, (one) => moment(one.first_utc, one.first_s), true],
    [`last (${unit})`, (one) => moment(one.last_utc, one.last_s), true],
    ["usual interval (s)", (one) => Fixed(one.usual_interval_s, 3), true],
    ["longest gap (s)", (one) => Fixed(one.longest_gap_s, 3), true],
    [`from (${unit})`, (one) => moment(one.longest_gap_from_utc, one.longest_gap_from_s), true],
  ];
}

function Messages(info) {
  const bad = info.messages.some((one) => one.bad_content + one.bad_field > 0);
  return Table(
    "Messages",
    [
      ["protocol", (one) => one.protocol],
      ["message", (one) => one.message],
      ["name", (one) => one.name],
      ["records", (one) => (one.undecoded ? "not decoded" : one.kinds.join(", "))],
      ...RateColumns(info),
      ["bytes", (one) => Count(one.bytes), true],
      ...(bad ? [["malformed", (one) => one.bad_content + one.bad_field || "", true]] : []),
    ],
    info.messages,
  );
}

// Tables that most recordings have no use for are left out.
function Tables(info) {
  const tables = [];
  const add = (title, columns, rows) => {
    if (rows.length > 0) tables.push(Section(title, Table(title, columns, rows)));
  };
  if (info.messages.length > 0) tables.push(Section("Messages", Messages(info)));
  add(
    "Kinds of records",
    [["kind", (one) => one.kind], ["what it is", (one) => one.description], ...RateColumns(info)],
    info.kinds,
  );
  const strength = [
    ["count", (one) => Count(one.count), true],
    ["mean C/N0, dB-Hz", (one) => Fixed(one.mean_cn0_dbhz, 1), true],
  ];
  add(
    "Signals",
    [["system", (one) => one.system], ["signal", (one) => one.signal], ...strength],
    info.satellites.signals,
  );
  add(
    "Satellites",
    [["system", (one) => one.system], ["satellite", (one) => one.satellite], ...strength],
    info.satellites.satellites,
  );
  add(
    "Stations",
    [
      ["station", (one) => one.station_id, true],
      ["message", (one) => one.message],
      ["latitude, °", (one) => Fixed(one.latitude_deg, 9), true],
      ["longitude, °", (one) => Fixed(one.longitude_deg, 9), true],
      ["ellipsoidal height, m", (one) => Fixed(one.height_ellipsoid_m, 4), true],
      ["antenna height, m", (one) => Fixed(one.antenna_height_m, 4), true],
      ["count", (one) => Count(one.count), true],
    ],
    info.stations,
  );
  add(
    "Equipment of stations",
    [
      ["station", (one) => one.station_id, true],
      ["antenna", (one) => one.antenna],
      ["serial number", (one) => one.antenna_serial],
      ["receiver", (one) => one.receiver],
      ["firmware", (one) => one.firmware],
      ["serial number", (one) => one.receiver_serial],
      ["count", (one) => Count(one.count), true],
    ],
    info.station_equipment,
  );
  add(
    "Receivers",
    [
      ["software", (one) => one.software],
      ["hardware", (one) => one.hardware],
      ["extensions", (one) => one.extensions.join(", ")],
      ["count", (one) => Count(one.count), true],
    ],
    info.receivers,
  );
  add(
    "Texts",
    [
      ["from", (one) => one.from],
      ["text", (one) => one.text],
      ["count", (one) => Count(one.count), true],
    ],
    info.texts,
  );
  add(
    "Protocols",
    [
      ["protocol", (one) => one.protocol],
      ["frames", (one) => Count(one.frames), true],
      ["bytes", (one) => Count(one.bytes), true],
      ["share", (one) => Percent(one.share, 2), true],
    ],
    info.protocols,
  );
  add(
    "Heads without a frame",
    [
      ["protocol", (one) => one.protocol],
      ["reason", (one) => one.reason],
      ["count", (one) => Count(one.count), true],
    ],
    info.rejected,
  );
  return tables;
}
