#!/usr/bin/env bash
# Runs GoogleTest programs in parallel and adds up their cases.
#
#   tests/run-tests.sh RESULTS_DIR PROGRAM...
#
# Each program is cut into shards, so that a long one uses every core; each shard has a home and a
# temporary folder of its own and TEST_SECONDS (default 600) to finish. What failed is printed with its
# output. The last line is `N passed, N failed`; the status is 0 only when something ran and nothing
# failed. A shard that crashes or hangs counts as one failure beside the cases that it finished.
set -u

results=$1
shift
jobs=${TEST_JOBS:-$(nproc)}
seconds=${TEST_SECONDS:-600}
casesPerShard=25
passed=0
failed=0
skipped=0

rm -rf "$results"
mkdir -p "$results"
results=$(cd "$results" && pwd)

run_shard() {  # PROGRAM INDEX TOTAL
  local room="$results/${1##*/}.$2"
  mkdir -p "$room/tmp" "$room/home"
  env HOME="$room/home" XDG_CONFIG_HOME="$room/home/.config" XDG_RUNTIME_DIR="$room/tmp" \
    TEST_TMPDIR="$room/tmp/" TMPDIR="$room/tmp" \
    GTEST_TOTAL_SHARDS="$3" GTEST_SHARD_INDEX="$2" GTEST_COLOR=no \
    timeout --kill-after=10 "$seconds" "$1" --gtest_output="xml:$room/report.xml" \
    >"$room/log" 2>&1 </dev/null
  echo $? >"$room/status"
}

# The output of each failed case, and of a case that was begun but never ended.
failures_of() {  # LOG
  awk '
    /^\[ RUN      \]/ { text = ""; inside = 1 }
    inside { text = text $0 "\n" }
    /^\[       OK \]|^\[  SKIPPED \]/ { inside = 0 }
    /^\[  FAILED  \]/ && inside { printf "%s", text; inside = 0 }
    END { if (inside) printf "%s", text }
  ' "$1"
}

attribute() {  # NAME FILE: the number in the report's head
  sed -n "s/.*<testsuites [^>]*\b$1=\"\([0-9]*\)\".*/\1/p" "$2" | head -n 1
}

tally_shard() {  # PROGRAM INDEX
  local room="$results/${1##*/}.$2" status total bad disabled skip
  status=$(cat "$room/status")
  if grep -q '^</testsuites>' "$room/report.xml" 2>/dev/null; then
    total=$(attribute tests "$room/report.xml")
    bad=$(attribute failures "$room/report.xml")
    disabled=$(attribute disabled "$room/report.xml")
    skip=$(grep -c '^ *<testcase .*result="skipped"' "$room/report.xml")
    passed=$((passed + total - bad - disabled - skip))
    skipped=$((skipped + skip + disabled))
    if [ "$status" -ne 0 ] && [ "$bad" -eq 0 ]; then
      bad=1  # A failure outside every case: a suite's set-up, or a sanitizer at exit.
      tail -n 60 "$room/log"
    fi
  else
    passed=$((passed + $(grep -c '^\[       OK \]' "$room/log")))
    bad=$((1 + $(grep -c '^\[  FAILED  \] .*ms)$' "$room/log")))
  fi
  [ "$bad" -eq 0 ] && return
  failed=$((failed + bad))
  failures_of "$room/log"
  if [ "$status" -eq 124 ] || [ "$status" -eq 137 ]; then
    echo "${1##*/}, shard $2: stopped after $seconds seconds (status $status); log: $room/log"
  elif [ "$status" -gt 1 ]; then
    tail -n 40 "$room/log"
    echo "${1##*/}, shard $2: ended with status $status; log: $room/log"
  else
    echo "${1##*/}, shard $2: failures above; log: $room/log"
  fi
}

plan=()
for program in "$@"; do
  # A listing has one line a suite and, indented, one a case.
  cases=$(timeout 60 "$program" --gtest_list_tests 2>/dev/null </dev/null | grep -c '^  ')
  if [ "$cases" -eq 0 ]; then
    echo "${program##*/}: lists no test, or cannot be started"
    failed=$((failed + 1))
    continue
  fi
  shards=$(((cases + casesPerShard - 1) / casesPerShard))
  [ "$shards" -gt "$jobs" ] && shards=$jobs
  for ((index = 0; index < shards; ++index)); do
    plan+=("$program $index $shards")
  done
done

running=0
for entry in "${plan[@]}"; do
  if [ "$running" -ge "$jobs" ]; then
    wait -n
    running=$((running - 1))
  fi
  rest=${entry% *}
  run_shard "${rest% *}" "${rest##* }" "${entry##* }" &
  running=$((running + 1))
done
wait

for entry in "${plan[@]}"; do
  rest=${entry% *}
  tally_shard "${rest% *}" "${rest##* }"
done

[ "$skipped" -gt 0 ] && echo "$skipped skipped or disabled"
if [ "$passed" -eq 0 ] && [ "$failed" -eq 0 ]; then
  echo "no test ran"
fi
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
