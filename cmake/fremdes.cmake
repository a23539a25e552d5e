# tarvel_fremdes_vorkompilieren(): the headers that are not ours are read once for all that draws no windows, and once for all
# that does, instead of by every joint file. Ours are not among them, so a change never compiles more than it touches.
set(TARVEL_FREMDE_KOEPFE <algorithm> <array> <atomic> <charconv> <chrono> <cmath> <deque> <filesystem> <fstream> <functional> <iomanip> <map>
    <memory> <numeric> <optional> <random> <set> <span> <sstream> <string> <string_view> <thread> <utility> <variant> <vector>)
set(TARVEL_FREMDE_FENSTERKOEPFE <QApplication> <QComboBox> <QFileInfo> <QFontMetricsF> <QGridLayout> <QGroupBox> <QLabel> <QLineEdit> <QListView>
    <QMessageBox> <QPainter> <QPushButton> <QScreen> <QScrollArea> <QTimer> <QToolTip> <QVBoxLayout>)

function(tarvel_fremdes_vorkompilieren)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "TARVEL_FREMDES_VORKOMPILIERT: other compilers take such headers only with the very same flags")
  endif()
  target_precompile_headers(core PRIVATE ${TARVEL_FREMDE_KOEPFE} <gtest/gtest.h>)
  if(TARVEL_OBERFLAECHE)
    target_precompile_headers(platform_qt PRIVATE ${TARVEL_FREMDE_KOEPFE} <gtest/gtest.h> ${TARVEL_FREMDE_FENSTERKOEPFE})
  endif()
  get_property(ziele GLOBAL PROPERTY TARVEL_ZIELE)
  foreach(ziel IN LISTS ziele)
    if(ziel STREQUAL "vorlagen")
      continue()  # compiled with other flags
    endif()
    get_target_property(art ${ziel} TYPE)
    get_target_property(nutzt ${ziel} LINK_LIBRARIES)
    target_compile_definitions(${ziel} PRIVATE GTEST_HAS_PTHREAD=1)  # what gtest's own targets set
    if("${nutzt}" MATCHES "(^|;)(Qt6::|platform_qt|ui)")
      set(quelle platform_qt)
    elseif(art STREQUAL "SHARED_LIBRARY" OR ziel STREQUAL "simulator")
      continue()  # compiled for another place in memory
    else()
      set(quelle core)
    endif()
    if(NOT ziel STREQUAL quelle)
      target_precompile_headers(${ziel} REUSE_FROM ${quelle})
    endif()
  endforeach()
endfunction()
