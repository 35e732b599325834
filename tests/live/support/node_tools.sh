# What the checks in a browser need of Node, in build/html-check, with the scripts of tests/live/html and of
# tests/live/preview. Sourced from the project's root; ends the test where there is no Node that could run them.
tools=$PWD/build/html-check
if ! node -e 'process.exit(Number(process.versions.node.split(".")[0]) >= 20 ? 0 : 1)' 2>/dev/null; then
  echo "Left out: the checkers need Node 20 or later."
  exit 0
fi
mkdir -p "$tools"
cp tests/live/html/* tests/live/preview/* "$tools/"
if ! cmp -s "$tools/package.json" "$tools/installed.json"; then
  (cd "$tools" && npm install --ignore-scripts --no-package-lock --no-audit --no-fund --silent)
  cp "$tools/package.json" "$tools/installed.json"
fi
