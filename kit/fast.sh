#!/bin/sh
# fast.sh: qbsp; light; vis -fast
exec sh "$(dirname "$0")/compile.sh" fast "$@"
