#!/bin/sh
# super.sh: qbsp -nofill; light
exec sh "$(dirname "$0")/compile.sh" super "$@"
