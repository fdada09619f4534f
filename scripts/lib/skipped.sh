# Which tests did not run, and why. Sourced, never run.
#
#   skipped REPORT      a line "skipped: NAME (REASON)" for each test that ctest's JUnit report calls skipped

skipped() {
    awk '
        /<testcase / { name = $0; gsub(/.* name="|" classname=.*/, "", name); is_skipped = 0; reason = "" }
        /<skipped /  { is_skipped = 1 }
        # A script says it in one line, GoogleTest in the line after the place.
        /skipped: /  { reason = $0; sub(/.*skipped: /, "", reason) }
        follows      { reason = $0 }
                     { follows = /: Skipped$/ }
        /<\/testcase>/ && is_skipped { print "skipped: " name " (" reason ")" }
    ' "$1"
}
