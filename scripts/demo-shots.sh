#!/usr/bin/env bash
# Plays a full-power break and two ordinary shots with the headless tool and says what happened.
set -euo pipefail
cd "$(dirname "$0")/.."
sim=build/bin/morvane-sim

# describe TITLE SHOT-JSON
describe() {
    python3 - "$1" "$2" <<'PY'
import json, sys
title, shot = sys.argv[1], json.loads(sys.argv[2])
cushions = {101: "the left cushion", 102: "the right cushion", 103: "the top cushion",
            104: "the bottom cushion"}
events = shot["events"]
print(f"== {title}")
print(f"   {shot['frames']} frames ({shot['frames'] * 0.05:.2f} s), {len(events)} contacts, "
      f"first ball hit: {shot['firstHitBall'] or 'none'}")
for e in events[:6]:
    what = cushions.get(e["partner"], f"ball {e['partner']}")
    fell = f", into pocket {e['pocket']}" if "pocket" in e else ""
    print(f"   frame {e['frame']:3} +{e['time']:.4f}: ball {e['ball']} meets {what}{fell}")
if len(events) > 6:
    print(f"   ... and {len(events) - 6} more")
print("   pocketed:", ", ".join(map(str, shot["pocketed"])) or "nothing")
cue = shot["balls"][0]
print(f"   the cue ball rests at ({cue['x']:.0f}, {cue['y']:.0f})" if cue["onTable"]
      else "   the cue ball fell")
PY
}

shot() { echo "$1" | "$sim" shot --seed 7; }

describe "Break at full power" "$(shot '{"break": true, "aim": [1700, 600], "power": 100}')"

balls='[{"x":600,"y":600},{"x":1700,"y":945.714},{"x":1200,"y":300},{"x":2000,"y":200},
        {"x":900,"y":1000},{"x":1500,"y":700},{"x":300,"y":200},{"x":2200,"y":900},
        {"x":1800,"y":400},{"x":2100,"y":1050}]'
describe "Ball 1 toward the top right corner, with draw" \
    "$(shot "{\"balls\": $balls, \"aim\": [1700, 945.714], \"power\": 80, \"hit\": [0, -0.5]}")"
describe "A soft shot at ball 2 with right side spin" \
    "$(shot "{\"balls\": $balls, \"aim\": [1200, 300], \"power\": 60, \"hit\": [0.6, 0]}")"
