#!/bin/sh
# leaktest.sh: qbsp -mark -notjunc
exec sh "$(dirname "$0")/compile.sh" leaktest "$@"
