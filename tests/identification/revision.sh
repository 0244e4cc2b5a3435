#!/bin/sh
# Which revision and which time a build takes. Arguments: cmake, source directory.
set -eu
cmake=$1 source=$2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset GIT_DIR GIT_WORK_TREE SOURCE_DATE_EPOCH
new_commit() { # folder
    git -C "$1" -c user.name=tester -c user.email=tester@example.org commit -q --allow-empty -m "$1"
}
says() { # folder, revision, date and time as the header has them, further arguments
    folder=$1 revision=$2 time=$3
    shift 3
    "$cmake" -DSOURCE_DIR="$folder" -DOUTPUT="$work/header" "$@" -P "$source/cmake/WriteBuildRevision.cmake"
    words=$(awk '/#define/ { $1 = $2 = ""; print }' "$work/header" | tr '\n' ' ' | tr -s ' ')
    [ "$words" = " \"$revision\" $time " ] || { echo "$words, not \"$revision\" $time"; exit 1; }
}
revision_of() { git -C "$1" rev-parse HEAD | cut -c1-11; }

# A copy inside of a host's repository, and a repository of its own there.
copy="$work/host/third party/copy"
mkdir -p "$copy"
git init -q "$work/host"
new_commit "$work/host"
says "$copy" 00000000000 '__DATE__ __TIME__'
git init -q "$copy"
says "$copy" 00000000000 '__DATE__ __TIME__' # nothing is committed yet
new_commit "$copy"
says "$copy" "$(revision_of "$copy")" '__DATE__ __TIME__'
new_commit "$copy"
says "$copy" "$(revision_of "$copy")" '__DATE__ __TIME__'
says "$copy" 0123456789a '__DATE__ __TIME__' -DREVISION=0123456789abcdef
git -C "$copy" worktree add -q "$work/worktree"
new_commit "$work/worktree"
says "$work/worktree" "$(revision_of "$work/worktree")" '__DATE__ __TIME__'

# The time that is asked for, in the form of the compiler's macros.
SOURCE_DATE_EPOCH=1764374670 TZ=America/New_York
export SOURCE_DATE_EPOCH TZ
says "$copy" "$(revision_of "$copy")" '"Nov 29 2025" "00:04:30"'
SOURCE_DATE_EPOCH=1762650000
says "$copy" "$(revision_of "$copy")" '"Nov 9 2025" "01:00:00"'
grep -q '"Nov  9 2025"' "$work/header"

# A build that changes nothing touches nothing.
touch -d '2 minutes ago' "$work/header"
before=$(stat -c %y "$work/header")
says "$copy" "$(revision_of "$copy")" '"Nov 9 2025" "01:00:00"'
[ "$(stat -c %y "$work/header")" = "$before" ]
