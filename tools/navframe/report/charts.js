// Charts over time, all of them with one axis: what is chosen on one is shown by all.
const Dashes = [[], [7, 4], [2, 3], [9, 3, 2, 3], [14, 4], [4, 4, 1, 4]];

// The common axis, and the values that stand on it. A break of the recording has a place of its
// own, where nothing has a value.
class Axis {
  constructor(axis) {
    this.kind = axis.kind;
    const scale = axis.kind === "bytes" ? 1 : 1000;
    const places = axis.x.map((x) => (axis.origin + x) / scale);
    const pause = 2.5 * Axis.Median(places) + (2 * axis.width) / scale;
    this.places = [];
    this.from = []; // the number that each of them has in the recording, -1 of a break
    places.forEach((place, i) => {
      const last = places[i - 1];
      if (i > 0 && place - last > pause) this.Add((place + last) / 2, -1);
      this.Add(place, i);
    });
    this.begin = places[0] ?? 0;
    this.end = places[places.length - 1] ?? 1;
    if (this.begin === this.end) this.end += axis.kind === "bytes" ? 100 : 1;
    this.At = (x) => (axis.origin + x) / scale;
    this.width = axis.width / scale;
  }

  Add(place, from) {
    this.places.push(place);
    this.from.push(from);
  }

  static Median(places) {
    const steps = places
      .slice(1)
      .map((place, i) => place - places[i])
      .sort((a, b) => a - b);
    return steps[Math.floor(steps.length / 2)] ?? 0;
  }

  // Values on the axis: null where a line breaks, undefined where it goes on without one.
  Values(values) {
    const on = this.from.map((from) => (from < 0 ? null : (values[from] ?? null)));
    const known = on.flatMap((value, i) => (value === null ? [] : [i]));
    const pause = 2.5 * Axis.Median(known.map((i) => this.places[i])) + 2 * this.width;
    for (let i = 1; i < known.length; ++i) {
      if (this.places[known[i]] - this.places[known[i - 1]] <= pause) {
        on.fill(undefined, known[i - 1] + 1, known[i]);
      }
    }
    return on;
  }
}

// What the charts of a recording have in common.
class Together {
  constructor(axis) {
    this.axis = axis;
    this.charts = [];
  }

  Show(min, max) {
    const {begin, end} = this.axis;
    const width = Math.min(Math.max(max - min, (end - begin) / 5000), end - begin);
    const from = Math.min(Math.max(min, begin), end - width);
    this.isShowing = true;
    for (const chart of this.charts) chart.plot.setScale("x", {min: from, max: from + width});
    this.isShowing = false;
  }

  Follow(plot) {
    const {min, max} = plot.scales.x;
    if (!this.isShowing && min !== undefined && min !== null) this.Show(min, max);
  }

  // Around the middle, or along the axis by a part of what is seen.
  Zoom(factor) {
    const {min, max} = this.charts[0].plot.scales.x;
    const [middle, half] = [(min + max) / 2, ((max - min) / 2) * factor];
    this.Show(middle - half, middle + half);
  }
  Move(part) {
    const {min, max} = this.charts[0].plot.scales.x;
    this.Show(min + part * (max - min), max + part * (max - min));
  }
  All() {
    this.Show(this.axis.begin, this.axis.end);
  }

  Key(event, chart) {
    const keys = {
      "+": () => this.Zoom(0.5),
      "=": () => this.Zoom(0.5),
      "-": () => this.Zoom(2),
      0: () => this.All(),
      ArrowLeft: () => chart.Step(-1),
      ArrowRight: () => chart.Step(1),
    };
    if (event.shiftKey) {
      keys.ArrowLeft = () => this.Move(-0.25);
      keys.ArrowRight = () => this.Move(0.25);
    }
    if (!keys[event.key] || event.ctrlKey || event.altKey || event.metaKey) return;
    keys[event.key]();
    event.preventDefault();
  }

  Tools() {
    const button = (text, label, act) =>
      Element("button", {type: "button", "aria-label": label, title: label, onclick: act}, text);
    return Element(
      "div",
      {class: "tools", role: "toolbar", "aria-label": "Time shown by all charts"},
      button("+", "Zoom in", () => this.Zoom(0.5)),
      button("−", "Zoom out", () => this.Zoom(2)),
      button("←", "Earlier", () => this.Move(-0.25)),
      button("→", "Later", () => this.Move(0.25)),
      button("All", "All of the recording", () => this.All()),
      Element(
        "span",
        {class: "hint"},
        "Drag over a chart to zoom. Keys on a chart: ← → values, shift ← → move, + − zoom, 0 all.",
      ),
    );
  }

  Draw() {
    const shown = this.charts[0]?.plot?.scales.x;
    const [min, max] = [shown?.min, shown?.max];
    for (const chart of this.charts)
      chart.Draw(Math.max(Math.floor(chart.canvas.clientWidth), 260));
    if (min !== undefined && min !== null) this.Show(min, max);
  }
}

// A chart: a figure with a legend whose entries are switches, and show values.
class Chart {
  constructor(together, title, label) {
    this.together = together;
    this.title = title;
    this.label = label;
    this.data = [together.axis.places];
    this.lines = [];
    this.marks = [];
    this.height = 240;
    this.legend = Element("div", {class: "legend"});
    this.time = Element("span", {class: "time", "aria-live": "off"});
    this.canvas = Element("div", {
      class: "canvas",
      tabindex: "0",
      role: "application",
      "aria-label": `${title}: chart`,
      onkeydown: (event) => together.Key(event, this),
    });
    this.figure = Element(
      "figure",
      {class: "chart"},
      Element("figcaption", {}, Element("h3", {}, title), this.time),
      this.canvas,
      this.legend,
    );
    together.charts.push(this);
  }

  // A line, with the band of the least and the most around it where they are told.
  AddLine(name, colour, dash, extents, options = {}) {
    const {axis} = this.together;
    const line = {name, colour, dash, options, isShown: true, isBand: extents.most !== undefined};
    line.at = this.data.length;
    this.data.push(
      axis.Values(
        options.isMost ? (extents.most ?? extents.least) : (extents.mean ?? extents.least),
      ),
    );
    if (line.isBand) this.data.push(axis.Values(extents.least), axis.Values(extents.most));
    line.value = Element("output", {});
    line.button = Element(
      "button",
      {
        type: "button",
        "aria-pressed": "true",
        onclick: () => {
          line.isShown = !line.isShown;
          line.button.setAttribute("aria-pressed", String(line.isShown));
          for (let i = 0; i < (line.isBand ? 3 : 1); ++i) {
            this.plot.setSeries(line.at + i, {show: line.isShown});
          }
        },
      },
      Svg(
        "svg",
        {class: "swatch", width: 26, height: 10, "aria-hidden": "true"},
        Svg("path", {d: "M1 5H25", class: `line-${colour}`, "stroke-dasharray": dash.join(" ")}),
      ),
      name,
      line.value,
    );
    this.legend.append(line.button);
    this.lines.push(line);
  }

  Series() {
    const series = [{}];
    const bands = [];
    const alpha = Math.round(60 / Math.sqrt(this.lines.length))
      .toString(16)
      .padStart(2, "0");
    for (const line of this.lines) {
      const paths = line.options.isStepped ? uPlot.paths.stepped({align: 1}) : undefined;
      const colour = Style(line.colour);
      const show = line.isShown;
      series.push({
        show,
        paths,
        stroke: colour,
        dash: line.dash,
        width: line.options.width ?? 1.5,
        points: {show: Chart.IsSparse(this.data[line.at]), size: 4},
      });
      if (!line.isBand) continue;
      for (let i = 0; i < 2; ++i) {
        series.push({show, paths, stroke: "transparent", width: 0, points: {show: false}});
      }
      bands.push({series: [line.at + 2, line.at + 1], fill: colour + alpha});
    }
    return {series, bands};
  }

  static IsSparse(values) {
    return values.filter((value) => value !== null && value !== undefined).length < 60;
  }

  Axes() {
    const {kind} = this.together.axis;
    const [stroke, grid] = [Style("soft"), {stroke: Style("grid"), width: 1}];
    const font = "12px system-ui, sans-serif";
    const common = {stroke, grid, ticks: grid, font, labelFont: font};
    return [
      {
        ...common,
        space: 90,
        label: AxisName[kind],
        labelSize: 18,
        size: 30,
        values: (plot, places) => Chart.Ticks(kind, places),
      },
      {...common, label: this.label, labelSize: 18, size: 46, incrs: [1, 2, 5, 10, 20, 50]},
    ];
  }

  // The date stands where it is a new one.
  static Ticks(kind, places) {
    const step = places.length > 1 ? places[1] - places[0] : 1;
    let last = "";
    return places.map((place) => {
      const text = PlaceText(kind, place, step);
      if (kind !== "utc") return text;
      const date = new Date(place * 1000).toISOString().slice(0, 10);
      if (date === last) return text;
      last = date;
      return `${text}\n${date}`;
    });
  }

  Options(width) {
    const {axis} = this.together;
    return {
      width,
      height: this.height,
      padding: [10, 30, 0, 0],
      ...this.Series(),
      axes: this.Axes(),
      legend: {show: false},
      tzDate: (seconds) => uPlot.tzDate(new Date(seconds * 1000), "Etc/UTC"),
      scales: {
        x: {
          time: axis.kind !== "bytes",
          range: (plot, min, max) => [min ?? axis.begin, max ?? axis.end],
        },
        y: {range: this.Range},
      },
      cursor: {
        y: false,
        drag: {x: true, y: false, setScale: true},
        points: {size: 6},
        sync: {key: "time", setSeries: false},
      },
      hooks: {
        setScale: [(plot, key) => key === "x" && this.plot === plot && this.together.Follow(plot)],
        setCursor: [() => this.Read()],
        drawClear: [(plot) => this.Under(plot)],
      },
    };
  }

  // Values below `min` are shown, too; counts begin at 0.
  Range(plot, min, max) {
    if (min === null || min === undefined) return [0, 1];
    const pad = Math.max((max - min) * 0.08, 0.5);
    return [Math.max(0, min - pad), max + pad];
  }

  Draw(width) {
    this.plot?.destroy();
    this.plot = new uPlot(this.Options(width), this.data, this.canvas);
    this.together.isShowing = true;
    this.plot.setScale("x", {min: this.together.axis.begin, max: this.together.axis.end});
    this.together.isShowing = false;
  }

  // Damage stands behind the lines: [begin, end, colour].
  Under(plot) {
    const {ctx} = plot;
    const {left, top, width, height} = plot.bbox;
    ctx.save();
    ctx.beginPath();
    ctx.rect(left, top, width, height);
    ctx.clip();
    for (const [begin, end, colour] of this.marks) {
      const from = plot.valToPos(begin, "x", true);
      const size = Math.max(plot.valToPos(end, "x", true) - from, 2 * devicePixelRatio);
      ctx.fillStyle = `${Style(colour)}40`;
      ctx.fillRect(from, top, size, height);
    }
    ctx.restore();
  }

  Step(by) {
    const {plot} = this;
    const {places} = this.together.axis;
    const last =
      plot.cursor.idx ?? (by > 0 ? plot.series[0].idxs[0] - 1 : plot.series[0].idxs[1] + 1);
    const at = Math.min(Math.max(last + by, 0), places.length - 1);
    if (places[at] < plot.scales.x.min) this.together.Move(-0.5);
    if (places[at] > plot.scales.x.max) this.together.Move(0.5);
    plot.setCursor({left: plot.valToPos(places[at], "x"), top: 1}, true, true); // of all charts
  }

  // Values at the cursor.
  Read() {
    const at = this.plot?.cursor.idx;
    const {axis} = this.together;
    const isAt = at !== null && at !== undefined && axis.from[at] >= 0;
    this.time.textContent = isAt ? PlaceText(axis.kind, axis.places[at]) : "";
    for (const line of this.lines) {
      const value = isAt ? this.data[line.at][at] : null;
      if (value === null || value === undefined) {
        line.value.textContent = "";
      } else if (line.isBand && this.data[line.at + 1][at] !== this.data[line.at + 2][at]) {
        line.value.textContent = `${this.data[line.at + 1][at]} to ${this.data[line.at + 2][at]}`;
      } else {
        line.value.textContent = String(value);
      }
    }
  }
}
