# Writes the manual page the program prints with --man: cmake -DEXE=... -DOUT=... -P man_page.cmake
execute_process(COMMAND ${EXE} --man OUTPUT_FILE ${OUT} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "zorvik --man failed: ${status}")
endif()
