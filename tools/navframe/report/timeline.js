// When messages came: a row for each, and one for damage.
class Timeline extends Chart {
  constructor(together, messages, damage, outside, isHealthy) {
    super(together, "Messages and damage", "");
    const {axis} = together;
    this.rows = [
      {
        name: isHealthy ? "in no frame" : "damage",
        runs: damage
          .flatMap(([begin, end, colour, text]) => [{begin, end, colour, text}])
          .concat(
            outside.x.map((x, i) => ({
              begin: axis.At(x),
              end: axis.At(x),
              colour: isHealthy ? "other" : "bad",
              isLow: true,
              text: `${Plural(outside.bytes[i], "byte")} in no frame`,
            })),
          ),
      },
      ...messages.map((row) => ({
        name: `${row.protocol} ${row.message}`,
        runs: Timeline.Pairs(row.runs).map(([begin, end]) => ({
          begin: axis.At(begin),
          end: axis.At(end),
          colour: ColourName[row.protocol] ?? "other",
        })),
      })),
    ];
    this.data.push(axis.places.map(() => null));
    const protocols = [...new Set(messages.map((row) => row.protocol))];
    const keys = [
      ...protocols.map((name) => [name, ColourName[name] ?? "other"]),
      ...Timeline.Keys.filter(([, colour]) => damage.some((place) => place[2] === colour)),
    ];
    this.legend.append(
      ...keys.map(([name, colour]) =>
        Element(
          "span",
          {class: "key"},
          Svg(
            "svg",
            {width: 14, height: 10, "aria-hidden": "true"},
            Svg("rect", {width: 14, height: 10, rx: 2, class: `fill-${colour}`}),
          ),
          name,
        ),
      ),
    );
  }

  static Keys = [
    ["damage", "bad"],
    ["messages that stay away", "warn"],
  ];

  static Pairs(list) {
    return Array.from({length: list.length / 2}, (_, i) => [list[2 * i], list[2 * i + 1]]);
  }

  Options(width) {
    const options = super.Options(width);
    const count = this.rows.length;
    const room = width < 600 ? 96 : 150;
    const [time, names] = options.axes;
    return {
      ...options,
      height: 18 * count + 58,
      series: [{}, {points: {show: false}, stroke: "transparent"}],
      scales: {...options.scales, y: {range: [0, count]}},
      axes: [
        time,
        {
          ...names,
          label: undefined,
          size: room,
          grid: {show: false},
          ticks: {show: false},
          splits: () => this.rows.map((_, i) => count - i - 0.5),
          values: () => this.rows.map(({name}) => Timeline.Cut(name, room < 100 ? 13 : 22)),
        },
      ],
      cursor: {...options.cursor, y: true},
      hooks: {...options.hooks, draw: [(plot) => this.Rows(plot)]},
    };
  }

  static Cut(text, length) {
    return text.length <= length ? text : `${text.slice(0, length - 1)}…`;
  }

  Rows(plot) {
    const {ctx} = plot;
    const {left, top, width, height} = plot.bbox;
    const row = height / this.rows.length;
    ctx.save();
    ctx.beginPath();
    ctx.rect(left, top, width, height);
    ctx.clip();
    this.rows.forEach(({runs}, i) => {
      ctx.fillStyle = Style("grid");
      ctx.fillRect(left, top + row * (i + 1), width, 1);
      for (const {begin, end, colour, isLow} of runs) {
        const at = plot.valToPos(begin, "x", true);
        const size = Math.max(plot.valToPos(end, "x", true) - at, 2 * devicePixelRatio);
        if (at + size < left || at > left + width) continue;
        const from = Math.min(at, Math.max(left + width - size, left)); // also at the very end
        ctx.fillStyle = Style(colour);
        const part = isLow ? 0.3 : 0.64;
        ctx.fillRect(from, top + row * (i + 0.82 - part), size, row * part);
      }
    });
    ctx.restore();
  }

  // The row at the cursor, and what stands there.
  Read() {
    super.Read();
    const {left, top} = this.plot?.cursor ?? {};
    if (this.time.textContent === "" || !(top >= 0)) return;
    const at = Math.floor((top / (this.plot.bbox.height / devicePixelRatio)) * this.rows.length);
    const row = this.rows[Math.min(at, this.rows.length - 1)];
    const place = this.plot.posToVal(left, "x");
    const near = this.plot.posToVal(left + 3, "x") - place;
    const run = row.runs.find(({begin, end}) => place >= begin - near && place <= end + near);
    const found = run === undefined ? ": nothing" : run.text === undefined ? "" : `: ${run.text}`;
    this.time.textContent += ` ${row.name}${found}`;
  }
}
