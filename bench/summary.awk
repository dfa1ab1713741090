# SPDX-License-Identifier: MIT
# Usage: awk -f summary.awk targets.txt RESULT.json...
# Compares the median times of the results with the targets. Fails when one is over, and when a
# job of the results lacks the contestants that its target names.

function text(line) {
    sub(/^[^:]*: *"?/, "", line)
    sub(/"?,? *\r?$/, "", line)
    return line
}

function job(name) {
    sub(/\/.*/, "", name)
    return name
}

function shown(ns) {
    if (ns >= 1e9) return sprintf("%.2f s", ns / 1e9)
    if (ns >= 1e6) return sprintf("%.2f ms", ns / 1e6)
    if (ns >= 1e3) return sprintf("%.2f us", ns / 1e3)
    return sprintf("%.1f ns", ns)
}

# The fastest of the peers that were measured.
function fastest(ours, peers,    names, count, i, name, best) {
    count = split(peers, names, ",")
    for (i = 1; i <= count; ++i) {
        name = names[i] ~ /\// ? names[i] : job(ours) "/" names[i]
        if (name in time && (best == "" || time[name] < time[best])) best = name
    }
    return best
}

BEGIN {
    format = "%-38s %10s  %-36s %10s %7s %6s %s\n"
    unit["ns"] = 1; unit["us"] = 1e3; unit["ms"] = 1e6; unit["s"] = 1e9
}

FILENAME == ARGV[1] {
    if ($0 ~ /^#/ || NF != 3) next
    ++targets
    ours[targets] = $1
    peers[targets] = $2
    limit[targets] = $3
    next
}

/"run_name":/ { run = text($0) }
/"aggregate_name":/ { aggregate = text($0) }
/"cpu_time":/ { cpu = text($0) + 0 }
/"time_unit":/ && aggregate == "median" {
    time[run] = cpu * unit[text($0)]
    measured[job(run)]
}

END {
    printf format, "job", "ours", "peer", "peer's", "ratio", "target", ""
    for (i = 1; i <= targets; ++i) {
        peer = fastest(ours[i], peers[i])
        if (!(job(ours[i]) in measured)) continue
        if (peer == "" && peers[i] ~ /\//) continue  # the peer is another job, left out of this run
        if (!(ours[i] in time) || peer == "") {
            printf format, ours[i], "", peers[i], "", "", limit[i], "not measured"
            failed = 1
            continue
        }
        ratio = time[ours[i]] / time[peer]
        verdict = limit[i] == "-" ? "" : ratio <= limit[i] ? "ok" : "over"
        if (verdict == "over") failed = 1
        ++compared
        shownPeer = job(peer) == job(ours[i]) ? substr(peer, length(job(peer)) + 2) : job(peer)
        printf format, job(ours[i]), shown(time[ours[i]]), shownPeer, shown(time[peer]), \
            sprintf("%.3f", ratio), limit[i], verdict
    }
    exit compared == 0 || failed
}
