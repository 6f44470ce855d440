velk_bench(camera SOURCES camera_bench.cpp USES mapfile)
