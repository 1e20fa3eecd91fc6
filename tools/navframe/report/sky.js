// Satellites in the sky: zenith in the middle, north up.
function SkyView(sky, width) {
  const size = Math.min(width, 460);
  const radius = size / 2 - 26;
  const at = (azimuth, elevation) => {
    const far = (radius * (90 - elevation)) / 90;
    const angle = (azimuth * Math.PI) / 180;
    return [size / 2 + far * Math.sin(angle), size / 2 - far * Math.cos(angle)];
  };
  const text = ([x, y]) => `${x.toFixed(1)} ${y.toFixed(1)}`;
  const rings = [0, 30, 60].map((elevation) =>
    Svg("circle", {cx: size / 2, cy: size / 2, r: (radius * (90 - elevation)) / 90, class: "grid"}),
  );
  const rays = [0, 45, 90, 135].map((azimuth) =>
    Svg("path", {class: "grid", d: `M${text(at(azimuth, 0))}L${text(at(azimuth + 180, 0))}`}),
  );
  const names = [
    ["N", 0],
    ["E", 90],
    ["S", 180],
    ["W", 270],
  ].map(([name, azimuth]) => {
    const [x, y] = at(azimuth, (-14 * 90) / radius);
    return Svg("text", {x, y: y + 4, class: "label middle"}, name);
  });
  const degrees = [30, 60].map((elevation) => {
    const [x, y] = at(180, elevation);
    return Svg("text", {x: x + 3, y: y - 3, class: "label soft"}, `${elevation}°`);
  });
  const satellites = sky.satellites.map((one) => {
    const colour = ColourName[one.system] ?? "other";
    const begins = new Set(one.begins);
    const points = one.azimuth.map((azimuth, i) => [azimuth, one.elevation[i], begins.has(i)]);
    const above = points.filter(([, elevation]) => elevation >= 0);
    if (above.length === 0) return null;
    const way = above
      .map(
        ([azimuth, elevation, isFirst], i) =>
          `${i === 0 || isFirst ? "M" : "L"}${text(at(azimuth, elevation))}`,
      )
      .join("");
    const [x, y] = at(...above[above.length - 1]);
    const cn0 = one.mean_cn0_dbhz;
    const r = cn0 === null ? 4 : Math.min(8, Math.max(4, cn0 / 6));
    const shown = cn0 === null ? "no signal" : `${cn0} dB-Hz on average`;
    return Svg(
      "g",
      {},
      Svg("title", {}, `${one.satellite} (${one.system}): ${shown}`),
      Svg("path", {d: way, class: `trail line-${colour}`}),
      Svg("circle", {
        cx: x,
        cy: y,
        r,
        class: cn0 === null ? `open line-${colour}` : `fill-${colour}`,
      }),
      Svg("text", {x: x + r + 2, y: y + 4, class: "label"}, one.satellite),
    );
  });
  return Svg(
    "svg",
    {
      viewBox: `0 0 ${size} ${size}`,
      width: size,
      height: size,
      role: "img",
      "aria-label": "Sky plot of satellites, north is up",
    },
    rings,
    rays,
    names,
    degrees,
    satellites,
  );
}

const SkyLegend = (sky) =>
  Element(
    "div",
    {class: "legend"},
    [...new Set(sky.satellites.map((one) => one.system))].map((system) =>
      Element(
        "span",
        {class: "key"},
        Svg(
          "svg",
          {width: 12, height: 12, "aria-hidden": "true"},
          Svg("circle", {cx: 6, cy: 6, r: 5, class: `fill-${ColourName[system] ?? "other"}`}),
        ),
        system,
      ),
    ),
    Element(
      "span",
      {class: "key"},
      Svg(
        "svg",
        {width: 12, height: 12, "aria-hidden": "true"},
        Svg("circle", {cx: 6, cy: 6, r: 4, class: "open line-other"}),
      ),
      "in view, without a signal",
    ),
  );
