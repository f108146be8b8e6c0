# Run by cpack before it packs what is installed: adds what every Debian package has and no other installation.

set(packaging ${CMAKE_CURRENT_LIST_DIR}/../packaging)

function(compress source target)
    execute_process(
        COMMAND gzip -9n --stdout ${source}
        OUTPUT_FILE ${target}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(add_documents component package)
    set(documents ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share/doc/${package})
    file(COPY ${packaging}/copyright DESTINATION ${documents})
    compress(${packaging}/changelog ${documents}/changelog.Debian.gz)
endfunction()

add_documents(library ${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME})
add_documents(development ${CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME})
add_documents(host ${CPACK_DEBIAN_HOST_PACKAGE_NAME})

set(host ${CPACK_TEMPORARY_DIRECTORY}/host/usr)
file(GLOB pages ${host}/share/man/man1/*.1)
foreach(page IN LISTS pages)
    compress(${page} ${page}.gz)
    file(REMOVE ${page})
endforeach()

# The library lies where the system looks for it.
file(RPATH_REMOVE FILE ${host}/bin/schedhost)
