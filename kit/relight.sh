#!/bin/sh
# relight.sh: light
exec sh "$(dirname "$0")/compile.sh" relight "$@"
