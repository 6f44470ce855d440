#!/usr/bin/env bash
# How much of the core its tests reach, folder by folder: builds it with the preset "coverage", runs the tests
# and prints a summary. build/coverage/report.txt names the lines that no test reaches.
set -uo pipefail
# shellcheck source=tools/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
packages+=(gcovr)

# Sums the table of files, which has their names and lines, by folder of src.
by_folder() {
  awk -F, 'NR > 1 {
      split($1, path, "/"); lines[path[2]] += $2; reached[path[2]] += $3; all += $2; done += $3
    }
    END {
      for (folder in lines)
        printf "%-12s %6d lines %6.1f %%\n", folder, lines[folder], 100 * reached[folder] / lines[folder] | "sort"
      close("sort")
      printf "%-12s %6d lines %6.1f %%\n", "all", all, all ? 100 * done / all : 0
    }'
}

install_packages
build coverage || exit 1
find "$root/build/coverage" -name '*.gcda' -delete
(cd "$root" && ctest --preset coverage --no-tests=error -j "$(nproc)") || exit 1
cd "$root" || exit 1
gcovr --root . --filter src/ --object-directory build/coverage --txt build/coverage/report.txt \
  --csv build/coverage/report.csv build/coverage || exit 1
by_folder <build/coverage/report.csv
