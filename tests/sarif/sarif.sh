#!/bin/sh
# What `talschema check --format sarif` prints is SARIF 2.1.0, as its published JSON schema has it. The schema and the
# program that knows JSON schemas are packages of npm, installed once into the build directory; without npm, or when it
# cannot reach its registry, the test is skipped. Arguments: the tool, build directory, source directory.
set -eu
tool=$1 build=$2 source=$3

skip() {
    echo "skipped: $1"
    exit 77
}

command -v node >/dev/null && command -v npm >/dev/null || skip "npm is not installed (Debian's package npm)"
packages=$build/sarif
if [ ! -e "$packages/complete" ]; then
    npm install --prefix "$packages" --no-audit --no-fund --ignore-scripts --silent \
        ajv@6.12.6 @microsoft/jest-sarif@1.0.0-beta.0 || skip "npm cannot install ajv and @microsoft/jest-sarif"
    touch "$packages/complete"
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cp "$source"/tests/tools/findings/*.xml "$source"/tests/tools/fixes/*.xml "$source"/examples/*.xml .
run() { # a name, the exit code, the arguments
    name=$1 expected=$2
    shift 2
    code=0
    "$tool" check --format sarif "$@" >"$name.sarif" 2>err || code=$?
    [ "$code" = "$expected" ] || { cat err; echo "$name: exit code $code"; exit 1; }
}
run all 1 --code-page 1252 ./*.xml
run clean 0 clean.xml
"$tool" check --write-baseline known.json skipped-attributes.xml 2>err
sed 's/Valeu="shared"/Extra=""/' skipped-attributes.xml >changed && mv changed skipped-attributes.xml
run baseline 1 --baseline known.json skipped-attributes.xml
for state in new unchanged absent; do
    grep -q "\"baselineState\":\"$state\"" baseline.sarif || { echo "nothing is $state"; exit 1; }
done
run unread 2 gone.xml certain.in.xml
grep -q '"executionSuccessful":false' unread.sarif
run fixed 0 --fix certain.in.xml

NODE_PATH=$packages/node_modules node - ./*.sarif <<'END'
const fs = require('fs');
const schema = require('@microsoft/jest-sarif/lib/schemas/sarif-2.1.0-rtm.5.json');
const ajv = new (require('ajv'))({ schemaId: 'id', allErrors: true });
ajv.addMetaSchema(require('ajv/lib/refs/json-schema-draft-04.json'));
const validate = ajv.compile(schema);
for (const file of process.argv.slice(2)) {
    const log = JSON.parse(fs.readFileSync(file));
    if (!validate(log)) {
        console.error(file, JSON.stringify(validate.errors, null, 1));
        process.exitCode = 1;
    }
    delete log.runs[0].tool; // the validator must not be one that is content with everything
    if (validate(log)) {
        console.error(file, 'is accepted without its tool');
        process.exitCode = 1;
    }
    console.log(file, log.runs[0].results.length, 'results');
}
END
