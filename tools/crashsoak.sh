#!/usr/bin/env bash
# kill -9 at random points of upgrades, backups and restores of a large company, and pairs of
# processes started on one old file. Every case must leave a company file that passes
# "pragma integrity_check" and holds the old or the new content completely.
# Needs sqlite3. Usage: tools/crashsoak.sh [path/to/tallynorth-cli]
# Counts and size: UPGRADES=40 BACKUPS=20 RESTORES=20 PAIRS=20 SIZE_MB=60 MAX_SECONDS=1800
set -uo pipefail
CLI=$(readlink -f "${1:-build/tallynorth-cli}")
UPGRADES=${UPGRADES:-40} BACKUPS=${BACKUPS:-20} RESTORES=${RESTORES:-20} PAIRS=${PAIRS:-20}
SIZE_MB=${SIZE_MB:-60} MAX_SECONDS=${MAX_SECONDS:-1800}
WORK=$(mktemp -d /tmp/crashsoak.XXXXXX)
trap 'rm -rf "$WORK"' EXIT
BASE=$WORK/base DB=$WORK/base/DB/ceg.db SAVED=$WORK/base/BiztonsagiMasolatok/ceg.dbk
mkdir -p "$BASE/DB" "$BASE/BiztonsagiMasolatok"
export XDG_RUNTIME_DIR=$WORK TALLYNORTH_LANG=en
START=$SECONDS
ROWS=$((SIZE_MB * 1000))
fails=0

cli() { timeout 300 "$CLI" --base "$BASE" "$@"; }
ms() { date +%s%3N; }
# The file's check, version, marker and row count: "ok|302|new|60000".
state() {
    sqlite3 "$1" "pragma integrity_check;" 2>&1 | head -1 | tr -d '\n'
    printf '|'
    sqlite3 "$1" "select (select VERSION from DBVERSION) || '|' ||
        (select STATNO_NAME from STATNO where STATNO_ID = 1) || '|' ||
        (select count(*) from PARTNER where PARTNER_CITY = 'soak');" 2>&1 | tr -d '\n'
}
expect() { # what, actual, allowed...
    local what=$1 actual=$2; shift 2
    for ok in "$@"; do [[ $actual == "$ok" ]] && return 0; done
    echo "FAIL $what: $actual (allowed: $*)"; fails=$((fails + 1))
}
# Runs the program in the background and kills it with SIGKILL after a random part of ms.
kill_during() {
    local span=$1; shift
    "$CLI" --base "$BASE" "$@" >/dev/null 2>&1 &
    local pid=$!
    local delay=$((RANDOM % (span + 1)))
    sleep "$(printf '0.%03d' "$delay")" 2>/dev/null || sleep "$((delay / 1000))"
    kill -9 "$pid" 2>/dev/null
    wait "$pid" 2>/dev/null
}
reset_side_files() { rm -f "$DB".beforeupgrade "$DB".upgrading "$DB".dbk "$DB".lock "$DB"-journal "$DB".tn-*.tmp; }

echo "building a company of about $SIZE_MB MB"
cli create "Soak Kft." --tax-no 12345676-2-42 --file ceg.db >/dev/null || exit 1
sqlite3 "$DB" "insert into STATNO (STATNO_ID, STATNO_NAME) values (1, 'new');
  with recursive n(i) as (select 1 union all select i + 1 from n where i < $ROWS)
  insert into PARTNER (PARTNER_CODE, PARTNER_NAME, PARTNER_CITY) select 'soak' || i, hex(randomblob(480)), 'soak' from n;" || exit 1
cp "$DB" "$WORK/new.db"
# The same company as version 301 left it: one column less.
cp "$DB" "$WORK/old.db"
sqlite3 "$WORK/old.db" "update DBVERSION set VERSION = 301; update STATNO set STATNO_NAME = 'old';
  alter table BANKITEM drop column BANKITEM_COMMENT;" || exit 1
# A backup of the same company at 302 with other content.
cp "$WORK/new.db" "$WORK/older302.db"
sqlite3 "$WORK/older302.db" "update STATNO set STATNO_NAME = 'old';" || exit 1
ls -l "$WORK"/*.db | awk '{print $5, $9}'

# How long each whole operation takes, to spread the kills over it.
reset_side_files; cp "$WORK/old.db" "$DB"
t=$(ms); cli --db "$DB" check >/dev/null; UPGRADE_MS=$(( $(ms) - t ))
t=$(ms); cli --db "$DB" backup "$SAVED" >/dev/null; BACKUP_MS=$(( $(ms) - t ))
t=$(ms); cli --db "$DB" restore "$SAVED" >/dev/null; RESTORE_MS=$(( $(ms) - t ))
echo "whole runs: upgrade ${UPGRADE_MS} ms, backup ${BACKUP_MS} ms, restore ${RESTORE_MS} ms"

over() { (( SECONDS - START > MAX_SECONDS )) && { echo "time limit reached"; return 0; }; return 1; }

n=0
for ((i = 0; i < UPGRADES; i++)); do
    over && break
    reset_side_files; cp "$WORK/old.db" "$DB"
    kill_during "$UPGRADE_MS" --db "$DB" check
    expect "upgrade $i killed" "$(state "$DB")" "ok|301|old|$ROWS" "ok|302|old|$ROWS"
    cli --db "$DB" check >/dev/null 2>&1
    expect "upgrade $i next start" "$(state "$DB")" "ok|302|old|$ROWS"
    n=$((n + 1))
done
echo "upgrades killed: $n"

n=0
for ((i = 0; i < BACKUPS; i++)); do
    over && break
    reset_side_files; cp "$WORK/new.db" "$DB"; cp "$WORK/older302.db" "$SAVED"
    kill_during "$BACKUP_MS" --db "$DB" backup "$SAVED"
    expect "backup $i company" "$(state "$DB")" "ok|302|new|$ROWS"
    expect "backup $i backup file" "$(state "$SAVED")" "ok|302|old|$ROWS" "ok|302|new|$ROWS"
    n=$((n + 1))
done
echo "backups killed: $n"

n=0
for ((i = 0; i < RESTORES; i++)); do
    over && break
    reset_side_files; cp "$WORK/new.db" "$DB"; cp "$WORK/older302.db" "$SAVED"
    kill_during "$RESTORE_MS" --db "$DB" restore "$SAVED"
    expect "restore $i killed" "$(state "$DB")" "ok|302|new|$ROWS" "ok|302|old|$ROWS"
    cli --db "$DB" check >/dev/null 2>&1
    expect "restore $i next start" "$(state "$DB")" "ok|302|new|$ROWS" "ok|302|old|$ROWS"
    n=$((n + 1))
done
echo "restores killed: $n"

n=0 busy=0
for ((i = 0; i < PAIRS; i++)); do
    over && break
    reset_side_files; cp "$WORK/old.db" "$DB"
    cli --db "$DB" check >"$WORK/a.out" 2>"$WORK/a.err" & a=$!
    cli --db "$DB" check >"$WORK/b.out" 2>"$WORK/b.err" & b=$!
    wait $a; ra=$?; wait $b; rb=$?
    for r in "$ra:a" "$rb:b"; do
        if [[ ${r%%:*} != 0 ]]; then
            if grep -q "another program" "$WORK/${r##*:}.err"; then busy=$((busy + 1));
            else echo "FAIL pair $i: $(cat "$WORK/${r##*:}.err")"; fails=$((fails + 1)); fi
        fi
    done
    expect "pair $i" "$(state "$DB")" "ok|302|old|$ROWS"
    n=$((n + 1))
done
echo "pairs: $n (second process told the file was busy: $busy)"
echo "soak finished in $((SECONDS - START)) s: $fails failed"
[[ $fails == 0 ]]
