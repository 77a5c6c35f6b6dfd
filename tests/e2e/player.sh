# What a player does and sees, for the scripts beside this one. Sourced on a virtual display, with the
# program folder in FOLDER.

# within SECONDS COMMAND...: waits until the command succeeds.
within() {
    local end=$((SECONDS + $1))
    until "${@:2}"; do
        [ $SECONDS -lt $end ] || fail "${@:2}"
        sleep 0.1
    done
}

fail() {
    echo "failed: $*" >&2
    import -window root "${pictures:-build}/failed.png"
    exit 1
}

# keys KEY...: presses keys.
keys() { xdotool key --delay 25 "$@"; }
# write TEXT: types a text.
write() { xdotool type --delay 5 -- "$1"; }
# windows TITLE COUNT: whether so many windows have the title.
windows() { [ "$(xdotool search --onlyvisible --name "$1" | wc -l)" -eq "$2" ]; }
# in_front TITLE: whether the window in front has this title, a pattern.
in_front() { [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == $1 ]]; }

# engine NAME: finds the process and window of the engine; succeeds once it shows something.
engine() {
    pid=$(pgrep -f "^$FOLDER/ports/$1/$1 ") || return 1
    window=$(xdotool search --onlyvisible --pid "$pid" | tail -n 1)
    [ -n "$window" ] && [ "$(import -window "$window" -format '%[fx:int(255*mean)]' info:)" -ge 10 ]
} 2>/dev/null

# plays NAME ARGUMENTS: waits until the engine runs with exactly these arguments, in its own folder.
plays() {
    within 20 engine "$1"
    [ "$(tr '\0' ' ' <"/proc/$pid/cmdline")" = "$FOLDER/ports/$1/$1 $2 " ] ||
        fail "$(tr '\0' ' ' <"/proc/$pid/cmdline")"
    [ "$(readlink "/proc/$pid/cwd")" = "$FOLDER/ports/$1" ] || fail "folder of $1"
}

# ends: kills the engine and waits until Zorvane has the focus again.
ends() {
    kill -KILL -- "-$pid"
    within 10 in_front Zorvane
}

# begin COMMAND...: starts the program, through a command if there is one, and waits for its window.
begin() {
    "$@" "$FOLDER/zorvane" >/dev/null 2>&1 &
    zorvane=$!
    within 10 in_front Zorvane
}

# leave: presses Exit and waits for the end.
leave() {
    keys Escape
    wait $zorvane
}
