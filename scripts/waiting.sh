# What the checks of whole programs wait and give up with, for sourcing.

fail() { echo "$1" >&2; exit 1; }

# wait_for SECONDS WHAT COMMAND...: until the command succeeds; fails with the words WHAT.
wait_for() {
  local limit=$1 what=$2
  shift 2
  for _ in $(seq $((limit * 5))); do
    if "$@" 2>/dev/null; then return; fi
    sleep 0.2
  done
  fail "$what"
}
