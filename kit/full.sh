#!/bin/sh
# full.sh: qbsp; light; vis
exec sh "$(dirname "$0")/compile.sh" full "$@"
