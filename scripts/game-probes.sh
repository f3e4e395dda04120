# What the measuring scripts read of a running game: sourced, with $game_pid set to its process.

# Resident memory now, in kB.
rss_kb() { awk '/VmRSS/ {print $2}' "/proc/$game_pid/status"; }

# The most resident memory seen over the next $1 seconds, looked at once a second, in kB.
peak_rss_kb() {
    local peak=0 kb
    for _ in $(seq 1 "$1"); do
        kb=$(rss_kb)
        ((kb > peak)) && peak=$kb
        sleep 1
    done
    echo "$peak"
}
