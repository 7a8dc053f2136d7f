# Run by CPack before it packs: manual pages and documents are compressed, and there is a changelog of Debian's form.
set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
set(documents "${share}/doc/${CPACK_PACKAGE_NAME}")

# The date of the sources, where a reproducible build gives one.
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE "${documents}/changelog" "${CPACK_PACKAGE_NAME} (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * Version ${CPACK_PACKAGE_VERSION}; NEWS.md.gz describes what is new.

 -- ${CPACK_DEBIAN_PACKAGE_MAINTAINER}  ${now}
")

file(GLOB texts "${share}/man/man*/*" "${documents}/changelog" "${documents}/NEWS.md")
execute_process(COMMAND gzip -9n -- ${texts} COMMAND_ERROR_IS_FATAL ANY)
