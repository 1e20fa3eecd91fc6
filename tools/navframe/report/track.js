// Where the receiver was, in metres to the east and to the north of the middle.
function Projected(track) {
  const radian = Math.PI / 180;
  const [a, e2] = [6378137, 0.00669437999014];
  const base = track.longitude[0];
  // No place is further than half around from the first one: the date line is none.
  const longitudes = track.longitude.map(
    (one) => base + ((((one - base + 540) % 360) + 360) % 360) - 180,
  );
  const middle = (values) =>
    (values.reduce((a, b) => Math.min(a, b)) + values.reduce((a, b) => Math.max(a, b))) / 2;
  const [latitude, longitude] = [middle(track.latitude), middle(longitudes)];
  const sine = Math.sin(latitude * radian);
  const curve = Math.sqrt(1 - e2 * sine * sine);
  const north = ((a * (1 - e2)) / curve ** 3) * radian;
  const east = (a / curve) * Math.cos(latitude * radian) * radian;
  return track.latitude.map((one, i) => [
    (longitudes[i] - longitude) * east,
    (one - latitude) * north,
  ]);
}

const Length = (metres) =>
  metres >= 1000
    ? `${metres / 1000} km`
    : metres >= 1
      ? `${metres} m`
      : metres >= 0.01
        ? `${Math.round(metres * 100)} cm`
        : `${Math.round(metres * 1000)} mm`;

// 1, 2 or 5 times a power of ten, not above the value.
function Round(value) {
  const power = 10 ** Math.floor(Math.log10(value));
  return Number(([5, 2, 1].find((digit) => digit * power <= value) * power).toPrecision(1));
}

// Lines of one quality, with the gaps of the track.
function Pieces(track, points) {
  const begins = new Set(track.begins);
  const pieces = [];
  points.forEach((point, i) => {
    const quality = track.qualities[track.quality[i]];
    const last = pieces[pieces.length - 1];
    if (begins.has(i) || !last) {
      pieces.push({quality, points: [point]});
    } else if (last.quality === quality) {
      last.points.push(point);
    } else {
      pieces.push({quality, points: [points[i - 1], point]});
    }
  });
  return pieces;
}

function TrackView(track, width) {
  const points = Projected(track);
  const [height, edge] = [Math.min(460, Math.max(300, width * 0.75)), 28];
  const extent = (i) => points.reduce((most, point) => Math.max(most, Math.abs(point[i])), 0);
  const scale = Math.min(
    (width / 2 - edge) / Math.max(extent(0), 0.05),
    (height / 2 - edge) / Math.max(extent(1), 0.05),
  );
  const X = ([east]) => (width / 2 + east * scale).toFixed(1);
  const Y = ([, north]) => (height / 2 - north * scale).toFixed(1);
  const bar = Round(width / 4 / scale);
  const size = bar * scale;

  const grid = [];
  for (let x = (width / 2) % size; x < width; x += size) grid.push(`M${x.toFixed(1)} 0V${height}`);
  for (let y = (height / 2) % size; y < height; y += size) grid.push(`M0 ${y.toFixed(1)}H${width}`);
  const pieces = Pieces(track, points);
  const lines = pieces.map(({quality, points: some}) => {
    const name = ColourName[quality] ?? "other";
    if (some.length === 1) {
      return Svg("circle", {cx: X(some[0]), cy: Y(some[0]), r: 2.5, class: `fill-${name}`});
    }
    const path = some.map((point, i) => `${i === 0 ? "M" : "L"}${X(point)} ${Y(point)}`).join("");
    return Svg("path", {d: path, class: `way line-${name}`}, Svg("title", {}, quality));
  });
  const end = (point, name, shift) => [
    Svg("circle", {cx: X(point), cy: Y(point), r: 5, class: "mark"}),
    X(point) > width - 50
      ? Svg("text", {x: X(point) - 9, y: Number(Y(point)) + shift, class: "label end"}, name)
      : Svg("text", {x: Number(X(point)) + 9, y: Number(Y(point)) + shift, class: "label"}, name),
  ];
  return Svg(
    "svg",
    {
      viewBox: `0 0 ${width} ${height}`,
      width,
      height,
      role: "img",
      "aria-label": "Track of the receiver, north is up",
    },
    Svg("path", {d: grid.join(""), class: "grid"}),
    lines,
    end(points[0], "start", -6),
    end(points[points.length - 1], "end", 14),
    Svg("path", {class: "frame", d: `M12 ${height - 18}v6h${size.toFixed(1)}v-6`}),
    Svg("text", {x: 16, y: height - 18, class: "label"}, Length(bar)),
    Svg("path", {class: "arrow", d: `M${width - 20} 34V12m-5 7 5-8 5 8`}),
    Svg("text", {x: width - 20, y: 48, class: "label middle"}, "N"),
  );
}

const TrackLegend = (track) =>
  Element(
    "div",
    {class: "legend"},
    [...new Set(track.quality)]
      .map((number) => track.qualities[number])
      .map((quality) =>
        Element(
          "span",
          {class: "key"},
          Svg(
            "svg",
            {width: 26, height: 10, "aria-hidden": "true"},
            Svg("path", {d: "M1 5H25", class: `way line-${ColourName[quality] ?? "other"}`}),
          ),
          quality,
        ),
      ),
  );
