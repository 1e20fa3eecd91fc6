// Numbers and times as texts.
const Count = (count) => count.toLocaleString("en-US");
const Plural = (count, one) => `${Count(count)} ${one}${count === 1 ? "" : "s"}`;
const Fixed = (number, digits) =>
  number === null || number === undefined ? "" : number.toFixed(digits);
const Percent = (share, digits = 1) => `${(100 * share).toFixed(digits)} %`;

function Bytes(bytes) {
  const units = ["B", "kB", "MB", "GB", "TB"];
  let at = 0;
  let value = bytes;
  for (; value >= 1000 && at + 1 < units.length; ++at) value /= 1000;
  return `${at === 0 ? value : value.toPrecision(3)} ${units[at]}`;
}

function Duration(seconds) {
  if (seconds === null) return "";
  if (seconds < 60) return `${Number(seconds.toFixed(3))} s`;
  const parts = [
    [86400, "d"],
    [3600, "h"],
    [60, "min"],
    [1, "s"],
  ];
  const first = parts.findIndex(([size]) => seconds >= size);
  const [large, small] = [parts[first], parts[first + 1]];
  const count = Math.floor(seconds / large[0]);
  const rest = Math.floor((seconds - count * large[0]) / small[0]);
  return rest === 0 ? `${count} ${large[1]}` : `${count} ${large[1]} ${rest} ${small[1]}`;
}

// "2026-03-14T12:00:00.000Z" as "2026-03-14 12:00:00".
const Utc = (text) => (text === null ? "" : text.replace("T", " ").replace(/(\.000)?Z$/, ""));
const ClockOf = (text) => Utc(text).replace(/^.* /, "");

// A place on the axis of time charts: seconds of Unix time, of the day or behind the beginning, or
// bytes; as precise as `step` needs.
function PlaceText(kind, value, step = 0.001) {
  if (kind === "bytes") return Bytes(Math.round(value));
  const end = step < 1 ? 12 : step < 60 ? 8 : 5;
  if (kind === "utc") return new Date(Math.round(value * 1000)).toISOString().slice(11, 11 + end);
  const ms = Math.round(value * 1000);
  const two = (number) => String(number).padStart(2, "0");
  const hours = Math.floor(ms / 3600000);
  const text =
    `${two(kind === "day" ? hours % 24 : hours)}:${two(Math.floor(ms / 60000) % 60)}:` +
    `${two(Math.floor(ms / 1000) % 60)}.${String(ms % 1000).padStart(3, "0")}`;
  return text.slice(0, text.length - 12 + end);
}
const AxisName = {
  utc: "UTC",
  day: "UTC",
  elapsed: "since the beginning",
  bytes: "offset in the file",
};
