# What the project's commands share. Sourced by them, with the name of the command in $command.
# The working folder is the top of the project.

say() { printf '%s: %s\n' "$command" "$*"; }

fail() {
  printf '%s: failed: %s\n' "$command" "$*" >&2
  exit 1
}

# Prints the packages of a list that are missing.
missing_of() {
  local wanted
  wanted=$(sed -e 's/#.*//' "$1" | tr -s '[:space:]' '\n' | sed '/^$/d')
  comm -23 <(sort -u <<<"$wanted") \
    <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' $wanted 2>/dev/null |
      sed -n 's/^installed //p' | sort -u)
}

# install PACKAGE ...: installs them as root or through sudo; what the tools print goes to a log.
install() {
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || return
    as_root=(sudo)
  fi
  mkdir -p build
  {
    "${as_root[@]}" apt-get update &&
      "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "$@"
  } >build/install.log 2>&1 </dev/null
}

# Installs what is missing of a list of packages, of what building needs if none is given; quick and
# silent when nothing is.
install_missing() {
  local missing
  missing=$(missing_of "${1:-packaging/build-packages.txt}")
  [ -z "$missing" ] && return
  say "installing" $missing
  install $missing || fail "installing $missing (needs root or sudo), see build/install.log"
}

# The same with what tests can do without.
install_optional() {
  local missing
  missing=$(missing_of packaging/optional-packages.txt)
  [ -z "$missing" ] && return
  say "installing" $missing
  install $missing || say "going on without" $missing
}

# build PRESET: configures and builds; what the tools print goes to a log.
build() {
  local preset=$1 configured=${2:-$1} log=build/$1.log
  mkdir -p build
  say "building $preset"
  {
    cmake --preset "$configured" && cmake --build --preset "$preset"
  } >"$log" 2>&1 </dev/null || {
    grep -E -A3 'error|FAILED' "$log" | head -n 40 >&2
    fail "building $preset, see $log"
  }
}

# Ends what was started on the virtual display, the last one first, and the display.
end_virtual_display() {
  local n
  for ((n = ${#children[@]} - 1; n >= 0; --n)); do
    kill "${children[n]}" 2>/dev/null && wait "${children[n]}" 2>/dev/null
  done
  rm -rf "$private"
}

# Starts a virtual display of our own, tells programs to use it, and ends it with the shell. Sets
# $private, a folder that goes with it.
start_virtual_display() {
  private=$(mktemp -d) || fail "making a temporary folder"
  children=()
  trap end_virtual_display EXIT
  # Xvfb picks a free display and tells which.
  Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$private/display" 2>"$private/xvfb.log" &
  children+=($!)
  for _ in $(seq 100); do
    [ -s "$private/display" ] && break
    sleep 0.1
  done
  [ -s "$private/display" ] || fail "starting Xvfb: $(head -n 1 "$private/xvfb.log")"
  DISPLAY=:$(cat "$private/display")
  # Folders of its own, so that a running program is no hindrance and no lost documents are opened.
  XDG_RUNTIME_DIR=$private/runtime
  XDG_STATE_HOME=$private/state
  mkdir -m 700 "$XDG_RUNTIME_DIR"
  QT_QPA_PLATFORM=xcb
  export DISPLAY XDG_RUNTIME_DIR XDG_STATE_HOME QT_QPA_PLATFORM
  unset WAYLAND_DISPLAY
}
