# A screen of its own for the script that sources this: Xvfb with a window manager, of the size in SCREEN (1024x768).
# All that the script starts in the background, and its folder $scratch, go with it.
scratch=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$scratch"' EXIT
Xvfb -displayfd 3 -screen 0 "${SCREEN:-1024x768}x24" -nolisten tcp 3>"$scratch/display" >/dev/null 2>&1 &
for _ in $(seq 100); do
  [ -s "$scratch/display" ] && break
  sleep 0.1
done
[ -s "$scratch/display" ] || { echo "Xvfb did not start" >&2; exit 1; }
export DISPLAY=":$(cat "$scratch/display")" QT_QPA_PLATFORM=xcb
openbox >/dev/null 2>&1 &
sleep 0.5
