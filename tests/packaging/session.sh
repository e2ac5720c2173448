# Functions for scripts that run the program: a virtual X server, and a session bus for the program.
# Sourced. The script defines `fail MESSAGE`, and `work`, a folder of its own; `end_session` belongs
# into its exit trap.
server=
session=

end_session() {
  [ -z "$session" ] || kill "$session" 2>/dev/null || true
  [ -z "$server" ] || kill "$server" 2>/dev/null || true
}

# Runs a command until it succeeds, for at most 20 s.
wait_for() {
  local end=$((SECONDS + 20))
  until "$@"; do
    [ "$SECONDS" -lt "$end" ] || return 1
    sleep 0.1
  done
}

# Starts the X server, and a bus on which PROGRAM runs; its errors go to $work/errors.
start_program() {
  export HOME=$work XDG_RUNTIME_DIR=$work XDG_CONFIG_HOME=$work/config
  unset WAYLAND_DISPLAY
  exec {pipe}<> <(:)
  Xvfb -displayfd "$pipe" -screen 0 1280x800x24 -dpi 96 -nolisten tcp >/dev/null 2>&1 &
  server=$!
  read -r -t 20 -u "$pipe" display || fail "the X server did not start"
  export DISPLAY=:$display
  dbus-run-session -- sh -c \
    'echo "$DBUS_SESSION_BUS_ADDRESS" >"$2/bus"; "$1" 2>"$2/errors" & echo $! >"$2/pid"; wait $!' sh \
    "$1" "$work" 2>/dev/null &
  session=$!
  wait_for shows_window 640x540 || fail "no pill: $(cat "$work/errors" && xwininfo -root -tree)"
}

# Whether the program shows a window whose size begins with $1.
shows_window() { xwininfo -root -tree | grep -q "\"Brellowind\".* $1"; }

# Ends the program, which must succeed.
end_program() {
  kill -TERM "$(cat "$work/pid")"
  local status=0
  wait "$session" || status=$?
  session=
  [ "$status" -eq 0 ] || fail "the program ended with status $status"
}
