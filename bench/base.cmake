velk_bench(base SOURCES base_bench.cpp)
