#!/usr/bin/env bash
# A page's sound is heard: the real program plays a tone into a private sound server, whose output is recorded.
source "$(dirname "$(readlink -f "$0")")/support/lib.sh"

export PULSE_RUNTIME_PATH=$work/pulse PULSE_SERVER=unix:$work/pulse/native HOME=$work
mkdir -p "$work/pulse"
pulseaudio --daemonize=no --exit-idle-time=-1 --disallow-exit -n --use-pid-file=no \
  -L "module-native-protocol-unix socket=$work/pulse/native auth-anonymous=1" \
  -L "module-null-sink sink_name=listener rate=44100" >"$work/pulse.log" 2>&1 &
pulse_pid=$!
wait_until pactl info
parec --latency-msec=20 --format=s16le --rate=44100 --channels=1 -d listener.monitor >"$work/heard.raw" 2>/dev/null &
parec_pid=$!

python3 - "$work" <<'PY'
import json, math, struct, sys, wave
with wave.open(sys.argv[1] + "/TONE.WAV", "wb") as w:
    w.setparams((1, 2, 22050, 0, "NONE", ""))
    w.writeframes(b"".join(struct.pack("<h", int(20000 * math.sin(2 * math.pi * 880 * i / 22050))) for i in range(44100)))
json.dump({"pgversion": 3, "PageType": 0, "dbconnect": "\t\t", "SelectStmt": "", "bkgfile": "", "sndfn": "tone.wav",
           "bkgcol": 0, "bkght": 100, "bkgwd": 200, "pgflags": 8, "pgcaption": "Tone", "keyreq": "",
           "gridcolumns": [], "objects": []}, open(sys.argv[1] + "/tone.json", "w"))
PY
"$programs/odspage" build "$work/tone.json" "$work/tone.ods"
start_editor Tone "$work/tone.ods"
sleep 3
end_editor
kill $parec_pid $pulse_pid

python3 - "$work/heard.raw" <<'PY'
import array, sys
heard = array.array("h", open(sys.argv[1], "rb").read()[: 2 * (len(open(sys.argv[1], "rb").read()) // 2)])
loud = [i for i, v in enumerate(heard) if abs(v) > 2000]
assert loud, "nothing was heard"
tone = heard[loud[0]:loud[-1]]
seconds = len(tone) / 44100
crossings = sum(1 for a, b in zip(tone, tone[1:]) if a < 0 <= b)
pitch = crossings / seconds
assert seconds > 0.5 and 840 < pitch < 920, (seconds, pitch)
print(f"A tone of {pitch:.0f} Hz was heard for {seconds:.2f} seconds.")
PY
