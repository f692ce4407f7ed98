#!/usr/bin/env bash
# Packs the sample project: sample.json -> sample.qds, beside this script.
# Usage: examples/sample/make-project.sh PATH/TO/zentor-cli   (e.g. build/bin/zentor-cli)
# Paths inside the project are relative (media/...), so open sample.qds from here
# or move it together with media/.
set -euo pipefail
if [ $# -ne 1 ]; then
    echo "usage: $0 PATH/TO/zentor-cli" >&2
    exit 2
fi
CLI="$(cd "$(dirname "$1")" && pwd)/$(basename "$1")"
cd "$(dirname "$0")"
"$CLI" pack sample.json sample.qds
echo "wrote $(pwd)/sample.qds"
