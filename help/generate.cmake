# Generates a help collection from SOURCES and the folder PICTURES in FOLDER and puts it at COLLECTION. GENERATOR is qhelpgenerator, which
# says of missing pages and bad links only in warnings: whatever it reports beyond its progress is an error.
file(REMOVE_RECURSE ${FOLDER})
file(COPY ${SOURCES} ${PICTURES} DESTINATION ${FOLDER})
execute_process(
  COMMAND ${GENERATOR} -c corvanta.qhcp -o corvanta.qhc
  WORKING_DIRECTORY ${FOLDER}
  RESULT_VARIABLE status
  OUTPUT_VARIABLE report
  ERROR_VARIABLE report)
if(NOT status EQUAL 0 OR report MATCHES "[Ww]arning|[Ee]rror|[Mm]issing|does not exist|[Cc]annot")
  message(FATAL_ERROR "The help collection: ${report}")
endif()
get_filename_component(target ${COLLECTION} DIRECTORY)
file(COPY ${FOLDER}/corvanta.qch ${FOLDER}/corvanta.qhc DESTINATION ${target})
file(TOUCH ${target}/corvanta.qch ${COLLECTION})
