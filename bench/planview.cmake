velk_bench(planview SOURCES planview_bench.cpp USES mapfile)
