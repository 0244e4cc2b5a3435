#!/bin/sh
# Builds talschema and shows it at work on the examples. Installs what is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_packages graphviz

cmake --preset default -DTAL_BUILD_TESTS=OFF -DTAL_BUILD_BENCHMARKS=OFF >/dev/null
mkdir -p build/demo
echo "Building talschema ..."
cmake --build build --parallel "$(nproc)" >build/demo/build.log 2>&1 || {
    cat build/demo/build.log
    exit 1
}

talschema=build/bin/talschema
run() {
    printf '\n$ %s\n' "$*"
    "$@"
}
run $talschema show examples/bracket.xml
run $talschema show examples/wind-turbine.xml
run $talschema show --format json examples/bracket.xml
for example in bracket wind-turbine thermal-test-with-mistakes; do
    run $talschema rewrite examples/$example.xml build/demo/$example.xml
done
run cat build/demo/bracket.xml
# Both have something to report, so their exit code is 1.
run $talschema diff examples/bracket.xml build/demo/bracket.xml || [ $? = 1 ]
run $talschema check examples/thermal-test-with-mistakes.xml || [ $? = 1 ]
printf '\n$ %s graph examples/wind-turbine.xml | dot -Tsvg -o build/demo/wind-turbine.svg\n' $talschema
$talschema graph examples/wind-turbine.xml | dot -Tsvg -o build/demo/wind-turbine.svg
printf '\n\nThe tool is %s; the rewritten examples and the drawing are in build/demo.\n' $talschema
