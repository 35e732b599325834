#!/usr/bin/env bash
# Page files under git: their differences in words, merges, rebases and cherry-picks of independent changes.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
samples=$PWD/samples
export PATH=$PWD/build/release/bin:$PATH
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work GIT_CONFIG_NOSYSTEM=1
cd "$work"

fail() { echo "git.sh: $*" >&2; exit 1; }
edit() { odspage dump query.ods | python3 -c "
import json, sys
page = json.load(sys.stdin)
$1
json.dump(page, sys.stdout)" | odspage build - query.ods && git commit -qam "$2"; }
holds() { grep -q "$1" <<<"$(odspage dump query.ods)" || fail "lost: $1"; }

git init -qb main pages && cd pages
git config user.name Author && git config user.email author@example.org
cp "$samples"/*.ods .
odspage git-setup . && odspage git-setup .
[ "$(wc -l <.gitattributes)" = 2 ] || fail "the attributes stand twice"
git add -A && git commit -qm "Pages"

git checkout -qb captions
edit 'page["objects"][0]["kindextra"]["Caption"] = "Look for a customer"' "Caption"
edit 'page["objects"].append(dict(page["objects"][12], ptop=300, actlist={"code": 522}))' "Button"
grep -q '^+.*Look for a customer' <<<"$(git diff main captions)" || fail "no differences in words"
git checkout -q main
edit 'page["objects"][0]["pleft"] = 25; page["pgcaption"] = "Search"' "Place"

git checkout -qb merged main && git merge -q -m "Both" captions
git checkout -qb rebased captions && git rebase -q main
git checkout -qb picked main && git cherry-pick captions~1 captions >/dev/null
for branch in merged rebased picked; do
  git checkout -q "$branch"
  for text in '"Look for a customer"' '"pleft": 25' '"pgcaption": "Search"' '"ptop": 300'; do holds "$text"; done
done

git checkout -qb other main
edit 'page["objects"][0]["pleft"] = 30' "Elsewhere"
git checkout -q main
edit 'page["objects"][0]["pleft"] = 40' "Here"
git merge -q other >/dev/null 2>&1 && fail "a conflict was not told"
grep -q '^UU query.ods' <<<"$(git status --porcelain)" || fail "the conflict is not in the index"
holds '"pleft": 40'
echo "Pages under git: differences, merge, rebase, cherry-pick and a conflict as they should be."
