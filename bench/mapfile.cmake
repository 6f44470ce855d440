velk_bench(mapfile SOURCES mapfile_bench.cpp)
