#!/usr/bin/env bash
# A self-running résumé that waits for its recipient opens a real window showing its home
# page: the screen under Xvfb must be the picture --frame 0 writes.
#   window_opens_home.sh ZENTOR_CLI WORK_DIR
set -euo pipefail
cli=$1
work=$2
rm -rf "$work"
mkdir -p "$work"
cd "$work"
for tool in xvfb-run import compare; do
    command -v "$tool" >/dev/null || { echo "missing tool: $tool" >&2; exit 1; }
done

echo '{"Header":{"ShowAsRun":0},"Profile":{"FirstName":"Ada","Email":"ada@example.org"}}' >cv.json
"$cli" pack cv.json cv.qds
"$cli" generate cv.qds cv.run --selfrun --player linux
env -u DISPLAY -u WAYLAND_DISPLAY ./cv.run --frame 0 frame.png

# Polls the screen until the window has painted (or about 20 s have gone).
xvfb-run -a -s "-screen 0 800x600x24" bash -c '
    QT_QPA_PLATFORM=xcb ./cv.run 2>player.log &
    player=$!
    status=1
    for _ in $(seq 80); do
        sleep 0.25
        kill -0 $player 2>/dev/null || break
        import -window root shot.png 2>/dev/null || continue
        diff=$(compare -metric AE shot.png frame.png null: 2>&1 || true)
        echo "$diff" >diff.txt
        if [ "$diff" = 0 ]; then status=0; break; fi
    done
    kill $player 2>/dev/null || true
    wait $player 2>/dev/null || true
    exit $status' || {
    echo "the window never showed the home page; differing pixels: $(cat diff.txt 2>/dev/null)" >&2
    cat player.log >&2
    exit 1
}
