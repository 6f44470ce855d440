velk_bench(makers SOURCES makers_bench.cpp)
