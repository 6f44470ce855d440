velk_bench(model SOURCES model_bench.cpp)
