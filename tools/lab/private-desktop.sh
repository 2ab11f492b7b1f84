# shellcheck shell=bash
# Shared by all private desktops: a temporary folder ("room"), a session bus, screen-reader support, a home folder, and
# the removal of all of these. Sourced by tools/lab/desktop and tools/lab/wayland-desktop.
# shellcheck disable=SC2317 # functions are called by traps and by name

here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
name=$(basename "$0")
room=
pids=()
command_pid=

cannot() { echo "$name: not possible here: $1" >&2; exit 77; }

need() {
  local tool
  for tool in "$@"; do
    command -v "$tool" >/dev/null || cannot "there is no $tool"
  done
}

fail() {
  echo "$name: $1; the last lines of its log:" >&2
  tail -n 8 "$log" >&2
  exit 1
}

wait_until() {
  local what=$1 deadline=$((SECONDS + 15))
  shift
  until "$@"; do
    ((SECONDS < deadline)) || fail "$what does not appear"
    sleep 0.02
  done
}

# Newest first: a process ends before those that it depends on.
end_all() {
  trap '' INT TERM HUP
  local pid index
  [[ -z $command_pid ]] || { kill "$command_pid" && wait "$command_pid"; } 2>/dev/null || true
  for ((index = ${#pids[@]} - 1; index >= 0; index--)); do
    pid=${pids[index]}
    { kill "$pid" && wait "$pid"; } 2>/dev/null || true
  done
  rm -rf "$room"
}

# If this script is killed, its children get SIGTERM.
start() {
  setpriv --pdeathsig TERM "$@" </dev/null >>"$log" 2>&1 &
  pids+=($!)
}

open_room() {
  need dbus-daemon setpriv
  room=$(mktemp -d "${TMPDIR:-/tmp}/keldra-desktop.XXXXXX")
  log=$room/desktop.log
  trap end_all EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 143' TERM
  export HOME=$room/home XDG_RUNTIME_DIR=$room/runtime TMPDIR=$room/tmp
  export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share XDG_CACHE_HOME=$HOME/.cache
  export XDG_STATE_HOME=$HOME/.local/state
  mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME" "$XDG_STATE_HOME" "$TMPDIR"
  mkdir -m 700 "$XDG_RUNTIME_DIR"
  unset DISPLAY WAYLAND_DISPLAY SESSION_MANAGER XAUTHORITY AT_SPI_BUS_ADDRESS NO_AT_BRIDGE XDG_CURRENT_DESKTOP
  export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 GSETTINGS_BACKEND=memory LANG=C.UTF-8
  [[ -n ${KELDRA_LAB:-} ]] || export DBUS_SYSTEM_BUS_ADDRESS=unix:path=$room/no-system-bus
}

# Without the system's service folders, so that this bus starts no services of the machine's own desktop.
start_session_bus() {
  cat > "$room/session.conf" <<XML
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=$XDG_RUNTIME_DIR/bus</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
XML
  export DBUS_SESSION_BUS_ADDRESS=unix:path=$XDG_RUNTIME_DIR/bus
  start dbus-daemon --nofork --config-file="$room/session.conf"
  wait_until "the session bus" test -S "$XDG_RUNTIME_DIR/bus"
  start /usr/libexec/at-spi-bus-launcher --launch-immediately
}

# The StatusNotifierItem watcher, which panels and tests start themselves.
watcher_is_there() {
  dbus-send --print-reply --dest=org.freedesktop.DBus / org.freedesktop.DBus.NameHasOwner \
    string:org.kde.StatusNotifierWatcher 2>/dev/null | grep -q true
}

screen_reader_bus_is_there() { [[ -n $(find "$XDG_RUNTIME_DIR/at-spi" -type s 2>/dev/null) ]]; }

# Exits with the command's status. The command runs in the background, so that signals are handled at once;
# `env --default-signal` and `<&0` keep Ctrl-C and the standard input working.
run_and_exit() {
  wait_until "the screen readers' bus" screen_reader_bus_is_there
  env --default-signal=INT,QUIT setpriv --pdeathsig TERM "$@" <&0 &
  command_pid=$!
  local status=0
  wait $command_pid || status=$?
  command_pid=
  exit $status
}
