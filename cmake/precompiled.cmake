# Headers that most files of a kind read: each target reads them once. Every file still names what it uses.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # The compiler cache has to see which files stand behind a precompiled header.
  add_compile_options(-fpch-preprocess)
endif()

set(core_headers <QFile> <QFileInfo> <QList> <QString> <QStringList> <algorithm> <array> <chrono> <functional> <map>
                 <memory> <optional> <vector>)
set(window_headers <QAction> <QApplication> <QLabel> <QLineEdit> <QMainWindow> <QPushButton> <QWidget>)
set(test_headers <QTemporaryDir> <gtest/gtest.h>)

function(kurbo_precompile)
  target_precompile_headers(kurbo_core PRIVATE ${core_headers})
  target_precompile_headers(kurbo_forms PRIVATE ${core_headers} ${window_headers})
  if(KURBO_TESTS)
    target_precompile_headers(kurbo_tests PRIVATE ${core_headers} ${test_headers})
    target_precompile_headers(kurbo_gui_tests PRIVATE ${core_headers} ${window_headers} ${test_headers} <QTest>)
  endif()
endfunction()
