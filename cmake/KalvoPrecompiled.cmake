# Headers that most files of a kind include, compiled once per kind instead of once per file. They
# only save time: every file includes what it uses. tools/tidy sees to that, as it reads the
# sources without them; so does any build with -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON.

# kalvo_precompile(<kind> [LINK <targets...>] [HEADERS <headers...>] [OPTIONS <options...>])
# Defines a kind: the headers given, on top of those that every kind has. A target of its own
# compiles it, so that no library waits for another's sources.
function(kalvo_precompile kind)
  cmake_parse_arguments(KIND "" "" "LINK;HEADERS;OPTIONS" ${ARGN})
  set(unit ${CMAKE_BINARY_DIR}/precompiled/${kind}.cpp)
  file(CONFIGURE OUTPUT ${unit} CONTENT "// The headers come before this line.\n")
  add_library(kalvo_precompiled_${kind} OBJECT ${unit})
  target_link_libraries(kalvo_precompiled_${kind} PRIVATE
    Qt6::Core fmt::fmt simdjson::simdjson tl::expected ${KIND_LINK})
  target_compile_options(kalvo_precompiled_${kind} PRIVATE ${KIND_OPTIONS})
  target_precompile_headers(kalvo_precompiled_${kind} PRIVATE
    <algorithm> <array> <chrono> <cmath> <coroutine> <cstddef> <cstdint> <functional> <limits>
    <map> <memory> <numbers> <numeric> <optional> <span> <string> <string_view> <unordered_map>
    <utility> <variant> <vector> <fmt/format.h> <tl/expected.hpp> ${KIND_HEADERS})
endfunction()

# kalvo_use_precompiled(<kind> <targets...>)
# The compiler takes them only for targets with the same options, so each links what the kind does.
function(kalvo_use_precompiled kind)
  get_target_property(linked kalvo_precompiled_${kind} LINK_LIBRARIES)
  foreach(target IN LISTS ARGN)
    target_link_libraries(${target} PRIVATE ${linked})
    target_precompile_headers(${target} REUSE_FROM kalvo_precompiled_${kind})
  endforeach()
endfunction()

set(KALVO_WIDGET_HEADERS
  <QAccessible> <QApplication> <QBoxLayout> <QClipboard> <QComboBox> <QDialog> <QEvent> <QFont>
  <QFontMetricsF> <QImage> <QLabel> <QLineEdit> <QMainWindow> <QMenuBar> <QMouseEvent> <QPainter>
  <QPainterPath> <QPixmap> <QPointer> <QPushButton> <QRadioButton> <QScrollArea> <QScrollBar>
  <QString> <QStyleOption> <QTimer> <QToolTip> <QWidget>)

kalvo_precompile(plain HEADERS <simdjson.h>)
kalvo_precompile(widgets LINK Qt6::Widgets HEADERS ${KALVO_WIDGET_HEADERS})
