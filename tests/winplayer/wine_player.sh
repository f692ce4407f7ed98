#!/usr/bin/env bash
# The Windows player inside a generated cv.exe, run under Wine: its --export writes the
# package's own music and pages byte for byte, and its --frame matches the Linux player's
# --frame of the same file (mean difference under 4 %) on the home page, mid-fade, inside
# the first page's hold and after the show has returned home.
#   wine_player.sh ZENTOR_CLI ZENTOR_PLAYER SAMPLE_DIR WORK_DIR
set -euo pipefail
cli=$1
linux_player=$2
sample=$3
work=$4
rm -rf "$work"
mkdir -p "$work"
cd "$work"
for tool in wine wineserver xvfb-run compare cmp; do
    command -v "$tool" >/dev/null || { echo "missing tool: $tool" >&2; exit 1; }
done
failures=0
fail() { echo "FAIL: $*" >&2; failures=$((failures + 1)); }

# The sample résumé twice: waiting on its home page, and as a show that runs at once with
# one-second pages (eight pages, then home by 9 s).
"$cli" info "$sample/sample.qds" | sed "s#\"media/#\"$sample/media/#g" >sample.json
sed 's/"ShowAsRun": *[0-9]*/"ShowAsRun": 0/' sample.json >home.json
sed -e 's/"ShowAsRun": *[0-9]*/"ShowAsRun": 1/' -e 's/"KeepOnTime": *[0-9]*/"KeepOnTime": 1000/' \
    -e 's/"ShowSpeed": *[0-9]*/"ShowSpeed": 20/' sample.json >show.json
for name in home show; do
    "$cli" pack $name.json $name.qds
    "$cli" generate $name.qds $name.exe 2>/dev/null
done

# Wine's own errors go to the logs; its fixme notes would drown them.
export WINEPREFIX=$work/prefix WINEDEBUG=fixme-all
# No Mono or Gecko installer on the first run, no debugger waiting on a crash.
export WINEDLLOVERRIDES="mscoree,mshtml,winedbg.exe="
export work

# Everything under one X server and one Wine server: the prefix is made once (slow).
xvfb-run -a bash -c '
    set -e
    # Windows has Arial; the Linux player draws it as Liberation Sans, the same metrics.
    # (This first run makes the prefix.)
    wine reg add "HKCU\\Software\\Wine\\Fonts\\Replacements" /v Arial /t REG_SZ \
        /d "Liberation Sans" /f >/dev/null 2>&1
    wineserver -p || true # keep it between the runs below
    # Now and then a Wine start fails with status 1 before the program prints anything (seen
    # on loaded machines); a second start tells that apart from the program failing.
    attempt() {
        local log=$1 status
        shift
        for try in 1 2; do
            wine "$@" >>$log 2>&1 && return 0
            status=$?
            echo "[$* exit $status, try $try]" >>$log
        done
        return $status
    }
    attempt export.log home.exe --export winexport || true
    for case in home:0 show:250 show:750 show:9000; do
        attempt frame.log ${case%%:*}.exe --frame ${case##*:} win-${case%%:*}-${case##*:}.png ||
            true
    done
    wineserver -k || true' || { echo "FAIL: Wine did not run" >&2; exit 1; }

# --export: the music and the eight pages, each the package's own bytes.
"$cli" unpack home.exe unpacked >/dev/null
exported=0
for f in unpacked/1[0-8]-*; do
    name=$(basename "$f")
    if cmp -s "$f" "winexport/$name"; then
        exported=$((exported + 1))
    else
        fail "--export wrote $name differently (or not at all): $(cat export.log)"
    fi
done
[ "$exported" = 9 ] || fail "--export wrote $exported of the 9 files"

# --frame against the Linux player's, MAE normalised to 0..1.
mean_diff() { { compare -metric MAE "$1" "$2" null: 2>&1 || true; } | sed 's/.*(\(.*\))/\1/'; }
for case in home:0 show:250 show:750 show:9000; do
    pkg=${case%%:*}
    ms=${case##*:}
    env -u DISPLAY -u WAYLAND_DISPLAY "$linux_player" $pkg.exe --frame "$ms" lin-$pkg-$ms.png
    if [ ! -f win-$pkg-$ms.png ]; then
        fail "--frame $ms of $pkg.exe wrote nothing: $(cat frame.log)"
        continue
    fi
    d=$(mean_diff win-$pkg-$ms.png lin-$pkg-$ms.png)
    echo "$pkg at $ms ms: mean difference $d"
    awk -v d="$d" 'BEGIN { exit !(d < 0.04) }' || fail "$pkg at $ms ms differs by $d"
done
# The frames must not all be one picture: the page differs from the home page.
if [ -f win-show-750.png ] && [ -f win-home-0.png ]; then
    d=$(mean_diff win-show-750.png win-show-9000.png)
    awk -v d="$d" 'BEGIN { exit !(d >= 0.04) }' || fail "the page looks like the home page ($d)"
fi

[ "$failures" = 0 ] || exit 1
