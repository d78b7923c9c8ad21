# cmake -D CMARK_GFM=… -D SOURCE=… -D PAGE=… -P page.cmake: makes a page in HTML of one in Markdown, with
# links to other such pages, and the pictures beside them.
if(NOT CMARK_GFM)
  message(FATAL_ERROR "cmark-gfm is missing, which makes HTML of the manual: apt-get install cmark-gfm")
endif()
execute_process(COMMAND ${CMARK_GFM} --extension table ${SOURCE} OUTPUT_VARIABLE GSM_TEXT
                                                                 COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "href=\"([a-z-]+)\\.md\"" "href=\"\\1.html\"" GSM_TEXT "${GSM_TEXT}")
string(REPLACE "src=\"../pictures/" "src=\"pictures/" GSM_TEXT "${GSM_TEXT}")
string(REGEX MATCH "<h1>([^<]*)</h1>" heading "${GSM_TEXT}")
set(GSM_TITLE "${CMAKE_MATCH_1}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/page.html.in ${PAGE} @ONLY)
