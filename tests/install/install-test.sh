#!/usr/bin/env bash
# Installs Brelk into a prefix made read-only and starts it headless, its home
# and XDG folders under WORK: the profile file goes to the configuration
# folder, the shipped maps to the data folder (a changed map stays, a deleted
# one comes back), nothing is written under the prefix. Made writable, the
# same install keeps its profile file beside the executable again.
#
# usage: install-test.sh BUILD-DIR SHIPPED-MAPS-DIR WORK
set -euo pipefail
build=$1 maps=$2 work=$3
prefix=$work/prefix

fail() { echo "FAIL: $*"; [ -f "$work/brelk.log" ] && sed 's/^/  brelk: /' "$work/brelk.log"; exit 1; }

pid=
# Whatever the outcome, no program is left running and the build tree stays removable.
cleanup() {
  if [ -n "$pid" ]; then kill "$pid" 2> /dev/null || true; fi
  chmod -R u+w "$work" 2> /dev/null || true
}
[ -d "$work" ] && chmod -R u+w "$work"
rm -rf "$work"
trap cleanup EXIT
mkdir -p "$work/home" "$work/runtime"
chmod 700 "$work/runtime"
cmake --install "$build" --prefix "$prefix" > /dev/null
chmod -R a-w "$prefix"

# root writes into read-only folders; without the capabilities that allow it,
# it meets the permissions like any user.
run=()
[ "$(id -u)" -eq 0 ] && run=(setpriv --inh-caps=-all --bounding-set=-dac_override,-dac_read_search,-fowner)
if "${run[@]}" test -w "$prefix/bin"; then
  echo "SKIP: the prefix cannot be made read-only here"
  exit 77
fi

export HOME=$work/home XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_CACHE_HOME=$work/cache \
       XDG_STATE_HOME=$work/state XDG_RUNTIME_DIR=$work/runtime QT_QPA_PLATFORM=offscreen
config=$XDG_CONFIG_HOME/Brelk data=$XDG_DATA_HOME/Brelk

# Whether PROFILE (lines end in CR LF) counts COUNT starts.
counts() { tr -d '\r' 2> /dev/null < "$1" | grep -qx "Launched=$2"; }

# Starts the installed program and ends it once PROFILE counts COUNT starts.
start() {
  local profile=$1 count=$2
  "${run[@]}" "$prefix/bin/brelk" > "$work/brelk.log" 2>&1 &
  pid=$!
  for _ in $(seq 300); do
    counts "$profile" "$count" && break
    kill -0 "$pid" 2> /dev/null || fail "brelk ended before $profile counted start $count"
    sleep 0.1
  done
  kill "$pid" 2> /dev/null || true
  wait "$pid" 2> /dev/null || true
  pid=
  counts "$profile" "$count" || fail "$profile does not count start $count"
}

listing() { find "$prefix" -printf '%P %s %m %T@\n' | sort; }
before=$(listing)

# First start: the profile file in the configuration folder, the shipped maps
# copied into the data folder byte for byte (the unit tests load each of them).
start "$config/brelk.ini" 1
shipped=$(cd "$maps" && ls -- *.txt)
[ "$(cd "$data" && ls -- *.txt)" = "$shipped" ] || fail "the data folder does not hold the shipped maps"
while IFS= read -r map; do
  cmp -s "$maps/$map" "$data/$map" || fail "$map differs from the shipped map"
done <<< "$shipped"

# Next start: the coach's change stays, a deleted shipped map comes back.
echo "ICO_QUAD:120" >> "$data/Aerowalk.txt"
changed=$(cat "$data/Aerowalk.txt")
rm "$data/Cure.txt"
start "$config/brelk.ini" 2
[ "$(cat "$data/Aerowalk.txt")" = "$changed" ] || fail "the changed map was overwritten"
cmp -s "$maps/Cure.txt" "$data/Cure.txt" || fail "the deleted shipped map did not come back"
[ "$(listing)" = "$before" ] || fail "something was written under the prefix"
[ ! -e "$XDG_CONFIG_HOME/brelk.ini" ] && [ "$(ls "$config")" = "brelk.ini" ] || fail "stray files in $XDG_CONFIG_HOME"

# Portable: in a folder it can write, the program keeps its profile beside the
# executable and leaves the user's folders alone.
chmod -R u+w "$prefix"
profile_before=$(cat "$config/brelk.ini")
start "$prefix/bin/brelk.ini" 1
[ "$(cat "$config/brelk.ini")" = "$profile_before" ] || fail "the portable start changed the user's profile file"
[ "$(cd "$data" && ls -- *.txt)" = "$shipped" ] || fail "the portable start changed the data folder"
echo "install test passed"
