velk_bench(build SOURCES build_bench.cpp USES mapfile)
