# Lists the skipped tests. Sourced, never run.
#
#   skipped REPORT      prints "skipped: NAME (REASON)" for each skipped test of ctest's JUnit report

skipped() {
    awk '
        /<testcase / { name = $0; gsub(/.* name="|" classname=.*/, "", name); is_skipped = 0; reason = "" }
        /<skipped /  { is_skipped = 1 }
        # A script prints the reason in the same line, GoogleTest in the next.
        /skipped: /  { reason = $0; sub(/.*skipped: /, "", reason) }
        follows      { reason = $0 }
                     { follows = /: Skipped$/ }
        /<\/testcase>/ && is_skipped { print "skipped: " name " (" reason ")" }
    ' "$1"
}
