velk_fuzz(entities SOURCES entities.cpp USES entities)
