#!/usr/bin/env bash
# Installs the build into a private DESTDIR and checks what the desktop reads from it: the
# launchers pass desktop-file-validate, the file types compile with update-mime-database and
# map *.qds and *.qdv to them, and every icon they name is in the hicolor theme.
set -euo pipefail
build="$1"
dest="$(mktemp -d)"
trap 'rm -rf "$dest"' EXIT

DESTDIR="$dest" cmake --install "$build" --prefix /usr >/dev/null
share="$dest/usr/share"
fail() { echo "FAIL: $*" >&2; exit 1; }

desktop-file-validate "$share"/applications/*.desktop

mime="$dest/mime"
cp -r "$share/mime" "$mime"
# Run as the desktop would: with the folder among its data folders.
warnings="$(XDG_DATA_DIRS="$dest" update-mime-database "$mime" 2>&1)"
[ -z "$warnings" ] || fail "update-mime-database: $warnings"
grep -q '^application/x-vitara-zentor-project:\*\.qds$' "$mime/globs" || fail "*.qds not a project"
grep -q '^application/x-vitara-zentor-package:\*\.qdv$' "$mime/globs" || fail "*.qdv not a package"

# Each type a launcher handles is one we define.
for type in $(sed -n 's/^MimeType=//p' "$share"/applications/*.desktop | tr ';' '\n'); do
    grep -q "^$type\$" "$mime/types" || fail "launcher type $type is not defined"
done

icon() {
    compgen -G "$share/icons/hicolor/*/$1/$2.*" >/dev/null || fail "no icon $2 in $1"
}
for name in $(sed -n 's/^Icon=//p' "$share"/applications/*.desktop); do icon apps "$name"; done
for name in $(sed -n 's/.*<icon name="\([^"]*\)".*/\1/p' "$share/mime/packages/vitara-zentor.xml"); do
    icon mimetypes "$name"
done
[ -x "$dest/usr/bin/zentor" ] || fail "the editor is not installed"
echo "install ok"
