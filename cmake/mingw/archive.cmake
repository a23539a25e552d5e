# After the rules of the platform, which take what a toolchain file says of archives for their own.
set(CMAKE_CXX_ARCHIVE_CREATE "${TARVEL_LLD_LINK} /lib /out:<TARGET> <OBJECTS>")
set(CMAKE_CXX_ARCHIVE_FINISH "")
