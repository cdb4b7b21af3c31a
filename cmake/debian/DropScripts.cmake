# SPDX-License-Identifier: MIT
# Run by cpack on the packages that it has built. It gives each with a library scripts that call ldconfig; the trigger of the package,
# which runs it once for all that are installed together, stands instead of them.
foreach(package ${CPACK_PACKAGE_FILES})
    set(folder ${CPACK_TOPLEVEL_DIRECTORY}/unpacked)
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
    if(EXISTS ${folder}/DEBIAN/triggers)
        file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
        execute_process(COMMAND dpkg-deb --root-owner-group --build ${folder} ${package} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    endif()
    file(REMOVE_RECURSE ${folder})
endforeach()
