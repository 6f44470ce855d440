velk_bench(ops SOURCES ops_bench.cpp USES mapfile)
