# Plants one line at a time in a tree of its own and checks that the check of the layers sees it. Run with:
# cmake -DCHECK=<layers.cmake> -DFOLDER=<scratch folder> -P tests/layers_see.cmake
cmake_minimum_required(VERSION 3.25)

# plant(FILE LINE IS_SEEN)
function(plant file line is_seen)
    file(REMOVE_RECURSE ${FOLDER})
    file(WRITE ${FOLDER}/${file} "${line}\n")
    execute_process(
        COMMAND ${CMAKE_COMMAND} -DROOT=${FOLDER} -P ${CHECK} RESULT_VARIABLE result
        OUTPUT_QUIET ERROR_QUIET
    )
    if((is_seen AND result EQUAL 0) OR (NOT is_seen AND NOT result EQUAL 0))
        message(SEND_ERROR "seen should be ${is_seen}: ${file}: ${line}")
    endif()
endfunction()

plant(data/a.h "#include \"listview/vc_in.h\"" TRUE)
plant(platform/a.h "#include \"platform/database/recordset.h\"" TRUE)
plant(data/a.h "#include \"platform/database/recordset.h\"" FALSE)
plant(data/a.h "#include <QtWidgets/QWidget>" TRUE)
plant(platform/database/a.cpp "#include <QDialog>" TRUE)
plant(listview/a.cpp "#include <QDialog>" FALSE)
plant(app/a.cpp "QMessageBox::about(nullptr, {}, {});" TRUE)
plant(platform/widgets/msgbox.cpp "QMessageBox box;" FALSE)
plant(tools/a.cpp "#include <sqlite3.h>" TRUE)
plant(tools/a.cpp "#include \"tools/sheets/a.h\"" TRUE)
plant(tools/main.cpp "#include \"tools/sheets/a.h\"" FALSE)
plant(tools/sheets/a.cpp "#include \"tools/old_format/a.h\"" TRUE)
plant(data/a.cpp "#include <unistd.h>" TRUE)
plant(gateway/a.cpp "#include <sys/socket.h>" FALSE)
plant(operators/a.cpp "run(u\"delete from users where userid=1\"_s)\;" TRUE)
plant(listview/a.cpp "rs.Open(u\"SELECT * From vwgroup\"_s)\;" TRUE)
plant(listview/a.cpp "rs.Open(u\"select * from vwgroup where a=1\"_s)\;" TRUE)
plant(messaging/a.cpp "x(u\"update sendsms set a=1\"_s)\;" TRUE)
plant(data/a.cpp "x(u\"update sendsms set a=1\"_s)\;" FALSE)
plant(platform/a.cpp "QString a = u\"提示\"_s\;" TRUE)
plant(platform/a.cpp "// a text … with → signs" FALSE)
