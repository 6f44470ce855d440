velk_bench(app SOURCES app_bench.cpp drag_bench.cpp USES commands mapfile)
