// Elements with attributes and content; texts become nodes, never markup.
function Fill(element, attributes, content) {
  for (const [name, value] of Object.entries(attributes)) {
    if (name.startsWith("on")) {
      element.addEventListener(name.slice(2), value);
    } else if (value !== null && value !== undefined && value !== false) {
      element.setAttribute(name, value === true ? "" : value);
    }
  }
  element.append(...content.flat().filter((one) => one !== null && one !== undefined));
  return element;
}
const Element = (name, attributes = {}, ...content) =>
  Fill(document.createElement(name), attributes, content);
const Svg = (name, attributes = {}, ...content) =>
  Fill(document.createElementNS("http://www.w3.org/2000/svg", name), attributes, content);

const Style = (name) =>
  getComputedStyle(document.documentElement).getPropertyValue(`--${name}`).trim();

// The colour of a system, of a protocol or of a quality: a custom property of the style.
const ColourName = {
  GPS: "gps",
  GLONASS: "glonass",
  Galileo: "galileo",
  BeiDou: "beidou",
  QZSS: "qzss",
  NavIC: "navic",
  SBAS: "sbas",
  NMEA: "gps",
  "NMEA tag block": "qzss",
  "RTCM 3": "galileo",
  UBX: "glonass",
  "55AA": "beidou",
  "ASCII log": "navic",
  "RTK fixed": "galileo",
  "RTK float": "navic",
  precise: "qzss",
  differential: "gps",
  autonomous: "beidou",
  estimated: "glonass",
  manual: "other",
  simulated: "other",
  "not told": "other",
};
const ColourOf = (name) => Style(ColourName[name] ?? "other");

const Section = (title, ...content) => Element("section", {}, Element("h2", {}, title), ...content);
const Note = (text) => Element("p", {class: "note"}, text);

// A table that scrolls by itself. Columns are [heading, text of a row, is a number].
function Table(label, columns, rows) {
  const head = columns.map(([name, , isNumber]) =>
    Element("th", {scope: "col", class: isNumber ? "number" : null}, name),
  );
  const body = rows.map((row) =>
    Element(
      "tr",
      {},
      columns.map(([, text, isNumber]) =>
        Element("td", {class: isNumber ? "number" : null}, String(text(row) ?? "")),
      ),
    ),
  );
  return Element(
    "div",
    {class: "scroll", tabindex: "0", role: "region", "aria-label": label},
    Element("table", {}, Element("thead", {}, Element("tr", {}, head)), Element("tbody", {}, body)),
  );
}
