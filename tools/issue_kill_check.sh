#!/usr/bin/env bash
# Issues consecutive invoices through the command line and kills some of the runs with SIGKILL
# at random moments; then checks that the invoice numbers have no gap and no duplicate and that
# each issued invoice is queued for its report to the tax authority.
#   tools/issue_kill_check.sh [CLI] [ISSUES] [SECONDS]
# CLI defaults to build/tallynorth-cli, ISSUES to 200, SECONDS (the time limit) to 900.
# Exit status 0 when the numbers are whole, 1 when not, 2 when the run could not be set up.
set -uo pipefail

cli=$(realpath "${1:-build/tallynorth-cli}")
issues=${2:-200}
limit=${3:-900}
templates=$(realpath "$(dirname "$0")/../tallyNorth/templates/invoice")
base=$(mktemp -d)
trap 'rm -rf "$base"' EXIT
db="$base/DB/demo.db"
run() { "$cli" --base "$base" --lang en --db "$db" "$@"; }

"$cli" --base "$base" --lang en check >/dev/null 2>&1 || exit 2
run template install "$templates" >/dev/null || exit 2

# The orders to issue: copies of the demonstration order with its items.
heads=$(sqlite3 "$db" "select group_concat(name, ', ') from pragma_table_info('ORDERHEAD')
                       where name not in ('ORDERHEAD_ID', 'ORDERHEAD_CODE')")
items=$(sqlite3 "$db" "select group_concat(name, ', ') from pragma_table_info('ORDERITEM')
                       where name not in ('ORDERITEM_ID', 'ORDERITEM_CODE', 'ORDERITEM_ORDERHEAD_ID')")
{
    echo "begin;"
    for ((i = 0; i < issues; ++i)); do
        echo "insert into ORDERHEAD ($heads) select $heads from ORDERHEAD where ORDERHEAD_ID = 1;"
        echo "insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, $items) select last_insert_rowid(),
              $items from ORDERITEM where ORDERITEM_ORDERHEAD_ID = 1;"
    done
    echo "commit;"
} | sqlite3 "$db" || exit 2

start=$SECONDS
kills=0
for id in $(sqlite3 "$db" "select ORDERHEAD_ID from ORDERHEAD where ORDERHEAD_ID > 1 order by 1"); do
    while true; do
        if ((SECONDS - start > limit)); then
            echo "time limit reached after $kills kills" >&2
            break 2
        fi
        run issue "$id" --pdf "$base/invoice.pdf" >/dev/null 2>&1 &
        pid=$!
        # About every third run is killed somewhere between start-up and its end.
        if ((RANDOM % 3 == 0)); then
            sleep "0.$(printf '%03d' $((RANDOM % 150)))"
            if kill -9 "$pid" 2>/dev/null; then
                kills=$((kills + 1))
                wait "$pid" 2>/dev/null
                continue # the same order again: issued already or not at all
            fi
        fi
        wait "$pid"
        status=$?
        [ "$status" -eq 0 ] && break
        echo "order $id: exit status $status" >&2
        exit 1
    done
done

read -r count distinct low high <<<"$(sqlite3 -separator ' ' "$db" \
    "select count(*), count(distinct ORDERHEAD_INVOICE_NO), min(ORDERHEAD_INVOICE_NO),
            max(ORDERHEAD_INVOICE_NO) from ORDERHEAD where ORDERHEAD_INVOICE_NO is not null")"
mismatched=$(sqlite3 "$db" "select count(*) from INVOICE left join ORDERHEAD on
    ORDERHEAD_ID = INVOICE_ORDERHEAD_ID where ORDERHEAD_INVOICE_NO is not INVOICE_ID")
invoices=$(sqlite3 "$db" "select count(*) from INVOICE")
# Every numbered invoice waits for its report to the tax authority, and nothing else does.
unqueued=$(sqlite3 "$db" "select count(*) from ORDERHEAD where ORDERHEAD_INVOICE_NO is not null
    and ORDERHEAD_INVOICE_NO not in (select TN_NAV_QUEUE_INVOICE_NO from TN_NAV_QUEUE)")
queued=$(sqlite3 "$db" "select count(*) from TN_NAV_QUEUE")
integrity=$(sqlite3 "$db" "pragma integrity_check")
echo "issued $count invoices (numbers $low..$high, $distinct distinct), $invoices INVOICE rows," \
     "$kills runs killed, $((SECONDS - start)) s; integrity: $integrity"
if [ "$count" -eq "$distinct" ] && [ "$low" = 1 ] && [ "$high" = "$count" ] \
    && [ "$invoices" -eq "$count" ] && [ "$mismatched" -eq 0 ] && [ "$integrity" = ok ] \
    && [ "$unqueued" -eq 0 ] && [ "$queued" -eq "$count" ]; then
    echo "no gap, no duplicate"
    exit 0
fi
echo "NUMBERING BROKEN" >&2
exit 1
