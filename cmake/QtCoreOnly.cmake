# brelk_qtcore: Qt Core, and nothing else of Qt, on the include path.
#
# Qt's own targets put the root of all Qt headers on the include path, so a
# model file could include <QtWidgets/QWidget> and only fail at link time.
# This target offers an include root that holds QtCore alone, so a widget
# include in the model is a compile error, and links the Qt Core library.
set(_qtcore_root "${CMAKE_BINARY_DIR}/qtcore-only")
get_target_property(_qt_includes Qt6::Core INTERFACE_INCLUDE_DIRECTORIES)
set(_qtcore_dir "")
foreach(dir IN LISTS _qt_includes)
  if(dir MATCHES "/QtCore$")
    set(_qtcore_dir "${dir}")
  endif()
endforeach()
if(NOT _qtcore_dir)
  message(FATAL_ERROR "Qt6::Core offers no QtCore include folder")
endif()
file(MAKE_DIRECTORY "${_qtcore_root}")
file(CREATE_LINK "${_qtcore_dir}" "${_qtcore_root}/QtCore" SYMBOLIC)

add_library(brelk_qtcore INTERFACE)
target_include_directories(brelk_qtcore SYSTEM INTERFACE "${_qtcore_root}" "${_qtcore_dir}")
target_compile_definitions(brelk_qtcore INTERFACE QT_CORE_LIB)
target_compile_options(brelk_qtcore INTERFACE -fPIC)
target_compile_features(brelk_qtcore INTERFACE cxx_std_17)
target_link_libraries(brelk_qtcore INTERFACE "$<TARGET_LINKER_FILE:Qt6::Core>")

# The boundary is a build fact: Qt Core headers compile with this include
# path, a widget header does not. The probes are only compiled.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
try_compile(_core_seen "${CMAKE_BINARY_DIR}/boundary-check-core"
  SOURCES "${CMAKE_CURRENT_LIST_DIR}/qtcore_probe.cpp"
  CMAKE_FLAGS "-DINCLUDE_DIRECTORIES=${_qtcore_root};${_qtcore_dir}"
  COMPILE_DEFINITIONS -fPIC
  CXX_STANDARD 20
  OUTPUT_VARIABLE _core_log)
if(NOT _core_seen)
  message(FATAL_ERROR "Qt Core headers do not compile with the model's include path:\n${_core_log}")
endif()
try_compile(_widgets_seen "${CMAKE_BINARY_DIR}/boundary-check"
  SOURCES "${CMAKE_CURRENT_LIST_DIR}/boundary_probe.cpp"
  CMAKE_FLAGS "-DINCLUDE_DIRECTORIES=${_qtcore_root};${_qtcore_dir}"
  COMPILE_DEFINITIONS -fPIC
  CXX_STANDARD 20)
if(_widgets_seen)
  message(FATAL_ERROR "The model's include path reaches Qt Widgets")
endif()
unset(CMAKE_TRY_COMPILE_TARGET_TYPE)
