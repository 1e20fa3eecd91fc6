// The page: recordings, one of which is shown.
// A chart for each system, all of them with one scale.
function Strengths(together, strengths) {
  const charts = new Map();
  const values = strengths.signals
    .flatMap(({cn0}) => [...(cn0.least ?? []), ...(cn0.most ?? [])])
    .filter((value) => value !== null);
  if (values.length === 0) return [];
  for (const {system, signal, cn0} of strengths.signals) {
    if (!charts.has(system)) charts.set(system, new Chart(together, system, "C/N0 [dB-Hz]"));
    const chart = charts.get(system);
    chart.AddLine(
      signal === null ? system : signal,
      ColourName[system] ?? "other",
      Dashes[chart.lines.length % Dashes.length],
      cn0,
    );
  }
  const least = 5 * Math.floor(values.reduce((a, b) => Math.min(a, b)) / 5);
  const most = 5 * Math.ceil(values.reduce((a, b) => Math.max(a, b), 0) / 5);
  for (const chart of charts.values()) {
    chart.Range = () => [least, Math.max(most, least + 5)];
    chart.height = charts.size > 1 ? 200 : 240;
  }
  return [...charts.values()];
}

function Satellites(together, satellites) {
  const isUsed = satellites.systems.some((one) => one.used);
  const rows = satellites.systems.filter((one) => one.used === isUsed);
  if (rows.length === 0 && satellites.used.least === undefined) return null;
  const chart = new Chart(
    together,
    satellites.used.least === undefined && !isUsed ? "Satellites received" : "Satellites used",
    "satellites",
  );
  chart.Range = (plot, min, max) => [0, Math.max(4, (max ?? 0) * 1.08)];
  const options = {isStepped: true, isMost: true};
  if (satellites.used.least !== undefined) {
    chart.AddLine("in the solution", "text", [], satellites.used, {...options, width: 2});
  }
  for (const {system, count} of rows) {
    chart.AddLine(
      `${system}${isUsed ? "" : ", received"}`,
      ColourName[system] ?? "other",
      isUsed ? [] : Dashes[1],
      count,
      options,
    );
  }
  return chart;
}

// [begin, end, colour, text] of each place of damage.
function Damage(axis, doctor, damage) {
  return damage.flatMap(({cause, places, evidence}, i) =>
    doctor.findings[i].harmless
      ? []
      : Timeline.Pairs(places).map(([begin, end], j) => [
          axis.At(begin),
          axis.At(end),
          cause === "gap" ? "warn" : "bad",
          `${cause}${evidence[j] ? `, ${evidence[j]}` : ""}`,
        ]),
  );
}

function TimeCharts({charts, doctor}) {
  const axis = new Axis(charts.axis);
  if (axis.places.length === 0) return [null, null];
  const together = new Together(axis);
  const marks = Damage(axis, doctor, charts.damage);
  const strengths = Strengths(together, charts.strengths);
  const satellites = Satellites(together, charts.satellites);
  for (const chart of together.charts) chart.marks = marks;
  const timeline = new Timeline(together, charts.messages, marks, charts.outside, doctor.healthy);
  const notes = [];
  if (charts.axis.kind === "bytes") {
    notes.push(Note("The recording tells no time: charts are drawn over the offset in the file."));
  }
  if (charts.axis.jumps > 0) {
    notes.push(
      Note(
        `The clock jumps ${charts.axis.jumps === 1 ? "once" : `${charts.axis.jumps} times`}: ` +
          "charts leave that out, and show the time since the beginning.",
      ),
    );
  }
  return [
    together,
    Section(
      "Over time",
      notes,
      together.Tools(),
      strengths.length === 0
        ? Note("The recording tells no C/N0.")
        : Element(
            "h3",
            {class: "group"},
            "C/N0 by signal: mean of the satellites, with the least and the most",
          ),
      Element(
        "div",
        {class: "charts"},
        strengths.map((chart) => chart.figure),
      ),
      satellites?.figure,
      timeline.figure,
    ),
  ];
}

function Views({charts, info}) {
  const track = Element("div", {class: "view"});
  const sky = Element("div", {class: "view"});
  const hasTrack = charts.track.latitude.length > 0;
  const hasSky = charts.sky.satellites.length > 0;
  const draw = () => {
    if (hasTrack) track.replaceChildren(TrackView(charts.track, Math.max(track.clientWidth, 280)));
    if (hasSky) sky.replaceChildren(SkyView(charts.sky, Math.max(sky.clientWidth, 280)));
  };
  const element = Element(
    "div",
    {class: "views"},
    Section(
      "Track",
      hasTrack
        ? Note(
            `${Plural(charts.track.points, "position")}, of ${info.position.source} at best.`,
          )
        : Note("The recording has no positions of the receiver."),
      track,
      hasTrack ? TrackLegend(charts.track) : null,
    ),
    Section(
      "Sky",
      hasSky
        ? Note(`As ${charts.sky.from} tells; names stand where satellites were last.`)
        : Note(
            "The recording does not tell where satellites stand: no GSV, NAV-SAT, NAV-SVINFO.",
          ),
      sky,
      hasSky ? SkyLegend(charts.sky) : null,
    ),
  );
  return [element, draw];
}

class Page {
  constructor(recordings) {
    this.recordings = recordings;
    this.main = document.getElementById("report");
    this.content = Element("div", {});
    this.buttons = recordings.map((recording, i) => {
      const {info} = recording;
      const [state, verdict] = Verdict(info, recording.doctor);
      return Element(
        "button",
        {type: "button", class: state, onclick: () => this.Show(i)},
        Element("b", {}, info.source),
        Element("span", {}, verdict),
      );
    });
    const list =
      recordings.length < 2
        ? null
        : Element(
            "nav",
            {"aria-label": "Recordings"},
            Element(
              "ul",
              {},
              this.buttons.map((button) => Element("li", {}, button)),
            ),
          );
    this.main.replaceChildren(...[list, this.content].filter((one) => one !== null));
    this.Show(0);
    addEventListener("resize", () => this.Later());
    matchMedia("(prefers-color-scheme: dark)").addEventListener("change", () => this.Draw());
    addEventListener("beforeprint", () => this.Print(true));
    addEventListener("afterprint", () => this.Print(false));
  }

  Show(at) {
    this.buttons.forEach((button, i) => button.setAttribute("aria-current", String(i === at)));
    const recording = this.recordings[at];
    const {info} = recording;
    const findings = Findings(recording.doctor, recording.charts.damage);
    const parts = [Heading(info, recording.doctor)];
    if (info.recognised && findings.length > 0)
      parts.push(Element("ul", {class: "findings"}, findings));
    this.together = null;
    this.views = null;
    if (info.recognised) {
      const [together, charts] = TimeCharts(recording);
      const [views, draw] = Views(recording);
      this.together = together;
      this.views = draw;
      parts.push(Figures(info), charts, views);
    }
    parts.push(...Tables(info));
    this.content.replaceChildren(...parts.filter((part) => part !== null));
    this.Draw();
  }

  Draw() {
    this.together?.Draw();
    this.views?.();
    this.width = innerWidth;
  }

  // Not for each step of a window that is being drawn larger.
  Later() {
    if (innerWidth === this.width) return;
    clearTimeout(this.timer);
    this.timer = setTimeout(() => this.Draw(), 120);
  }

  // Paper is light, and as wide as it is.
  Print(isBegin) {
    document.documentElement.classList.toggle("print", isBegin);
    this.Draw();
  }
}

new Page(
  Array.from(document.querySelectorAll("script.recording"), (element) => {
    const {charts, doctor, info} = JSON.parse(element.textContent);
    return {charts, doctor, info: info.files[0]};
  }),
);
