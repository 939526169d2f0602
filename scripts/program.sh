# Starts the program $1 on this display and ends it with the script; sourced. $pid and $main are its
# process and its window, which has the keyboard.

find_window() { timeout 20 xdotool search --sync --onlyvisible --name "$1" | head -n 1; }

"$1" &
pid=$!
trap 'kill $pid 2>/dev/null || true; wait $pid 2>/dev/null || true' EXIT
main=$(find_window '^Vellarno [0-9.]+$')
xdotool windowactivate --sync "$main"
