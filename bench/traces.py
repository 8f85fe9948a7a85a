# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""traces.py REPLAY [--picture FILE.svg]: how right and how calm the shown times are on real recordings.

Plays the recordings of tests/traces/ with REPLAY (bench/replay of a build) and prints, for each run
of at least 45 minutes to empty or 30 minutes to full, against the usual rule (what is left, or
missing, by the present rate):
  error   median of |ln(shown / true)|: 0.10 is about 10 %
  motion  hours that the shown end moves to and fro in an hour
With --picture it draws one discharge and one charge instead, into the file and into the FAQ.
"""

import csv
import math
import pathlib
import re
import statistics
import subprocess
import sys

TRACES = pathlib.Path(__file__).resolve().parent.parent / "tests" / "traces"
SLEEP = 600


def rows_of(path):
    with open(path, newline="") as lines:
        return [{"t": float(r["t_s"]), "percent": float(r["percent"]),
                 "full": float(r["energy_full_wh"]),
                 "power": float(r["power_w"] or 0), "status": r["status"]}
                for r in csv.DictReader(lines) if r["percent"]]


def shown_by(replay, path):
    run = subprocess.run([replay, path], capture_output=True, text=True, check=True)
    rows = (line.partition(",") for line in run.stdout.splitlines())
    return {float(t): float(m) if m else None for t, _, m in rows}


def runs_of(rows, status):
    run, sign = [], 1 if status == "Charging" else -1
    for row in [*rows, {"status": ""}]:
        if row["status"] == status and (
                not run or (row["t"] - run[-1]["t"] <= SLEEP
                            and sign * (row["percent"] - run[-1]["percent"]) > -1.01)):
            run.append(row)
            continue
        if run and is_long(run, sign):
            yield run
        run = [row] if row["status"] == status else []


def is_long(run, sign):
    hours = (run[-1]["t"] - run[0]["t"]) / 3600
    points = sign * (run[-1]["percent"] - run[0]["percent"])
    if sign > 0:
        return hours >= 0.5 and points >= 25 and run[-1]["percent"] >= 97
    return hours >= 0.75 and points >= 20


def true_times(run):
    """Minutes to the end of the run; a time to empty is stretched to what is left at the run's end."""
    if run[-1]["percent"] > run[0]["percent"]:
        end = next(r["t"] for r in run if r["percent"] >= min(99.5, run[-1]["percent"]))
        return {r["t"]: (end - r["t"]) / 60 for r in run if end - r["t"] >= 300}
    last = run[-1]
    return {r["t"]: (last["t"] - r["t"]) / 60 * r["percent"] / (r["percent"] - last["percent"])
            for r in run if last["t"] - r["t"] >= 900 and r["percent"] > last["percent"]}


def usual_times(run):
    """What is left or missing by the present rate, or by the change over at least three minutes."""
    shown = {}
    for k, row in enumerate(run):
        rate = row["power"] / row["full"] * 100
        for earlier in reversed(run[:k] if not rate else []):
            change = abs(row["percent"] - earlier["percent"])
            if row["t"] - earlier["t"] >= 180 and change >= 0.5:
                rate = change / (row["t"] - earlier["t"]) * 3600
                break
        stock = 100 - row["percent"] if run[-1]["percent"] > run[0]["percent"] else row["percent"]
        shown[row["t"]] = stock / rate * 60 if rate else None
    return shown


def measure(run, shown):
    true = true_times(run)
    known = [(t, shown[t]) for t in true if shown.get(t)]
    if len(known) < 5:
        return None
    error = statistics.median(abs(math.log(m / true[t])) for t, m in known if true[t] > 0)
    moved = sum(abs((b[1] - a[1]) + (b[0] - a[0]) / 60) for a, b in zip(known, known[1:]))
    return error, moved / 60 / ((known[-1][0] - known[0][0]) / 3600)


def print_table(replay):
    for status, title in (("Discharging", "Time to empty"), ("Charging", "Time to full")):
        found = {"usual rule": [], "Ferrin": []}
        for path in sorted(TRACES.glob("*.csv")):
            rows, shown = rows_of(path), shown_by(replay, path)
            runs = list(runs_of(rows, status))
            # A machine of many runs does not outvote the others.
            for run in runs[::max(1, len(runs) // 8)][:8]:
                both = measure(run, usual_times(run)), measure(run, shown)
                if all(both):
                    found["usual rule"].append(both[0])
                    found["Ferrin"].append(both[1])
        print(f"{title}, {len(found['Ferrin'])} runs" + f"{'error':>12}{'worst tenth':>14}{'motion':>9}")
        for name, results in found.items():
            errors = sorted(e for e, _ in results)
            ninetieth = errors[int(0.9 * (len(errors) - 1))]
            print(f"  {name:24}{statistics.median(errors):>10.3f}{ninetieth:>14.3f}"
                  f"{statistics.median(m for _, m in results):>9.2f}")


STYLE = """
  .times text { font: 13px sans-serif; fill: #333; }
  .times .title { font-weight: bold; font-size: 15px; }
  .times .grid { stroke: #8884; }
  .times polyline, .times .key { fill: none; stroke-linejoin: round; }
  .times .true { stroke: #888; stroke-dasharray: 5 4; }
  .times .usual { stroke: #d9822b; }
  .times .ours { stroke: #2e8b57; stroke-width: 2.5; }
  @media (prefers-color-scheme: dark) { .times text { fill: #ddd; } }
  @media (prefers-contrast: more) {
    .times text { fill: #000; } .times .grid { stroke: #767676; } .times .true { stroke: #4d4d4d; }
    .times .usual { stroke: #9a5300; } .times .ours { stroke: #145c38; }
  }
  @media (prefers-contrast: more) and (prefers-color-scheme: dark) {
    .times text { fill: #fff; } .times .true { stroke: #ccc; }
    .times .usual { stroke: #ffb066; } .times .ours { stroke: #6ddba6; }
  }
"""
FAQ = TRACES.parent.parent / "resources" / "faq" / "index.html"
FIGURE = re.compile(r"(<figure>\n).*?(</figure>)", re.DOTALL)


def panel(x, title, run, shown):
    true = true_times(run)
    start, span = run[0]["t"], max(true) - run[0]["t"]
    # The battery need not be emptied: what is shown stands against what is true to the run's end.
    most = max(true.values()) * 1.3
    width, height = 360, 240

    def line(name, times):
        points, parts, drawn = [], [], None
        for t in [*sorted(true), None]:
            m = times.get(t) if t is not None else None
            # A point a pixel.
            if m is not None and drawn is not None and t - drawn < span / width:
                continue
            drawn = t
            if m is None:
                parts.append(points)
                points = []
            else:
                y = 60 + height * (1 - min(m, most) / most)
                points.append(f"{x + (t - start) / span * width:.1f},{y:.1f}")
        return "".join(f'<polyline class="{name}" points="{" ".join(p)}"/>' for p in parts if len(p) > 1)

    step = 60 if most > 150 else 30
    grid = "".join(
        f'<line class="grid" x1="{x}" x2="{x + width}" y1="{60 + height * (1 - m / most):.1f}"'
        f' y2="{60 + height * (1 - m / most):.1f}"/><text x="{x - 8}" text-anchor="end"'
        f' y="{64 + height * (1 - m / most):.1f}">{m // 60}:{m % 60:02}</text>'
        for m in range(0, int(most) + 1, step))
    hours = "".join(
        f'<text x="{x + h * 3600 / span * width:.1f}" y="{60 + height + 20}"'
        f' text-anchor="middle">{h} h</text>' for h in range(0, int(span / 3600) + 1))
    return (f'<text class="title" x="{x}" y="44">{title}</text>{grid}{hours}'
            + line("usual", usual_times(run)) + line("true", true) + line("ours", shown))


def draw(replay, target):
    discharge, charge = TRACES / "yoga530-new-video.csv", TRACES / "yoga530-new-charge.csv"
    keys = (("ours", 60, "Ferrin"), ("usual", 160, "the usual rule"), ("true", 310, "the true time"))
    legend = "".join(f'<line class="key {name}" x1="{x}" x2="{x + 28}" y1="16" y2="16"/>'
                     f'<text x="{x + 36}" y="21">{text}</text>' for name, x, text in keys)
    body = panel(60, "Shown time to empty", next(runs_of(rows_of(discharge), "Discharging")),
                 shown_by(replay, discharge))
    body += panel(500, "Shown time to full", next(runs_of(rows_of(charge), "Charging")),
                  shown_by(replay, charge))
    attributes = ('class="times" viewBox="0 0 880 340" role="img"'
                  ' aria-label="The shown times of one discharge and one charge, against the true ones"')
    pathlib.Path(target).write_text(
        f'<svg xmlns="http://www.w3.org/2000/svg" {attributes}><style>{STYLE}</style>'
        f"{legend}{body}</svg>\n")
    picture = f"<svg {attributes}><style>{STYLE}</style>{legend}{body}</svg>\n"
    FAQ.write_text(FIGURE.sub(lambda found: found[1] + picture + found[2], FAQ.read_text()))


if __name__ == "__main__":
    if len(sys.argv) == 4 and sys.argv[2] == "--picture":
        draw(sys.argv[1], sys.argv[3])
    elif len(sys.argv) == 2:
        print_table(sys.argv[1])
    else:
        sys.exit(__doc__)
