#!/bin/sh
# novis.sh: qbsp; light
exec sh "$(dirname "$0")/compile.sh" novis "$@"
