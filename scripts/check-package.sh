#!/usr/bin/env bash
# Builds the Debian package (build/brelk_VERSION_ARCH.deb) and checks it:
# lintian reports no error, the desktop entry and the AppStream metadata pass
# their validators, the package depends on the Qt libraries it links and its
# changelog and metadata name its version.
#
# With --install (as CI runs it) it also installs the package with apt,
# starts the installed program headless as a user would (its files go to the
# user's folders, the shipped maps among them), and removes the package again,
# checking that nothing of it is left. Needs lintian, desktop-file-utils and
# appstream (scripts/deps.sh package).
set -euo pipefail
cd "$(dirname "$0")/.."

for tool in lintian desktop-file-validate appstreamcli; do
  command -v "$tool" > /dev/null || { echo "$tool is missing: run scripts/deps.sh package"; exit 1; }
done

cmake --preset default > /dev/null
cmake --build --preset default
(cd build && cpack -G DEB > /dev/null)
version=$(sed -n 's/^project(Brelk VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
deb=$(ls build/brelk_"$version"_*.deb)
echo "Package: $deb"

fail() { echo "FAIL: $*"; exit 1; }

lintian --fail-on error "$deb" ||
  fail "lintian reports errors"
desktop-file-validate packaging/io.github.brelk.Brelk.desktop || fail "desktop entry"
appstreamcli validate --no-net packaging/io.github.brelk.Brelk.metainfo.xml || fail "AppStream metadata"

depends=$(dpkg-deb -f "$deb" Depends)
for lib in libqt6core6 libqt6gui6 libqt6widgets6; do
  [[ $depends == *"$lib "* ]] || fail "the package does not depend on $lib: $depends"
done
head -1 packaging/changelog | grep -q "^brelk ($version)" || fail "packaging/changelog has no entry for $version"
grep -q "<release version=\"$version\"" packaging/io.github.brelk.Brelk.metainfo.xml ||
  fail "the AppStream metadata has no release $version"

[ "${1:-}" = --install ] || { echo "package checks passed"; exit 0; }

# Install, start and remove.
if dpkg-query -W -f='${Status}' brelk 2> /dev/null | grep -q "install ok installed"; then
  fail "a brelk package is installed already; remove it to let this check install its own"
fi
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get install -y -qq --no-install-recommends -o DPkg::Lock::Timeout=300 "./$deb" > build/package-install.log
installed=yes
files=$(dpkg -L brelk | while IFS= read -r f; do [ -d "$f" ] || echo "$f"; done)
# The program starts as a user would: as root, as the user nobody, since root
# may write into /usr/bin and the program would keep its files there.
work=$(mktemp -d)
cleanup() {
  rm -rf "$work"
  if [ "$installed" = yes ]; then $sudo apt-get purge -y -qq -o DPkg::Lock::Timeout=300 brelk > /dev/null; fi
}
trap cleanup EXIT
mkdir -p "$work/runtime"
chmod 700 "$work/runtime"
run=()
if [ "$(id -u)" -eq 0 ]; then
  chown -R nobody "$work"
  run=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
fi
HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/runtime \
  QT_QPA_PLATFORM=offscreen "${run[@]}" brelk > "$work/brelk.log" 2>&1 &
pid=$!
for _ in $(seq 300); do
  [ -s "$work/config/Brelk/brelk.ini" ] && break
  sleep 0.1
done
kill "$pid" 2> /dev/null || true
wait "$pid" 2> /dev/null || true
[ -s "$work/config/Brelk/brelk.ini" ] || { cat "$work/brelk.log"; fail "the installed brelk made no profile file"; }
[ "$(ls "$work/data/Brelk")" = "$(ls /usr/share/brelk/maps)" ] || fail "the shipped maps were not copied"

$sudo apt-get purge -y -qq -o DPkg::Lock::Timeout=300 brelk > build/package-remove.log
installed=no
while IFS= read -r f; do
  [ ! -e "$f" ] || fail "$f is left after removing the package"
done <<< "$files"
[ ! -e /usr/share/brelk ] || fail "/usr/share/brelk is left after removing the package"
echo "package checks passed: installed, started and removed"
