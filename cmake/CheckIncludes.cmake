# Fails when a folder under src/ includes what lies above or beside it.
# Run as: cmake -DSOURCE_DIR=<repository> -P CheckIncludes.cmake
cmake_minimum_required(VERSION 3.25)

# What each folder may include; only base/posix/ asks the system by other means than the standard
# library. Folders below ui/ may not include Qt either.
set(allowed_base "base")
set(allowed_geo "base;geo")
set(allowed_stations "base;geo;stations")
set(allowed_map "base;geo;map")
set(allowed_plot "base;geo;stations;map;plot")
set(allowed_app "base;geo;stations;map;app")

set(violations "")
foreach(folder base geo stations map plot app)
    file(GLOB_RECURSE sources "${SOURCE_DIR}/src/${folder}/*.h" "${SOURCE_DIR}/src/${folder}/*.cpp")
    foreach(source ${sources})
        file(STRINGS "${source}" includes REGEX "^ *# *include")
        foreach(line ${includes})
            if(line MATCHES "<Q"
                    OR (line MATCHES "<(sys/|unistd|fcntl)" AND NOT source MATCHES "/base/posix/")
                    OR (line MATCHES "\"([a-z]+)/" AND NOT CMAKE_MATCH_1 IN_LIST allowed_${folder}))
                string(APPEND violations "\n  ${source}: ${line}")
            endif()
        endforeach()
    endforeach()
endforeach()

# Only map/ includes map/blend/, and of it the one header that it offers; the blend knows the two
# plain values of map/ only.
file(GLOB_RECURSE sources "${SOURCE_DIR}/src/*.h" "${SOURCE_DIR}/src/*.cpp")
foreach(source ${sources})
    if(source MATCHES "/src/map/blend/")
        set(wrong "\"map/[A-Z]")
        set(right "\"map/(Pixel|ReferencePoint)\\.h\"")
    elseif(source MATCHES "/src/map/")
        set(wrong "\"map/blend/")
        set(right "\"map/blend/Blend\\.h\"")
    else()
        set(wrong "\"map/blend/")
        set(right "^$")
    endif()
    file(STRINGS "${source}" includes REGEX "^ *# *include")
    foreach(line ${includes})
        if(line MATCHES "${wrong}" AND NOT line MATCHES "${right}")
            string(APPEND violations "\n  ${source}: ${line}")
        endif()
    endforeach()
endforeach()

# The two window folders never include each other; they meet in main.cpp.
foreach(pair "main;map" "map;main")
    list(GET pair 0 folder)
    list(GET pair 1 other)
    file(GLOB_RECURSE sources
        "${SOURCE_DIR}/src/ui/${folder}/*.h" "${SOURCE_DIR}/src/ui/${folder}/*.cpp")
    foreach(source ${sources})
        file(STRINGS "${source}" includes REGEX "^ *# *include *\"ui/${other}/")
        foreach(line ${includes})
            string(APPEND violations "\n  ${source}: ${line}")
        endforeach()
    endforeach()
endforeach()

# What both windows share knows neither.
file(GLOB sources "${SOURCE_DIR}/src/ui/*.h" "${SOURCE_DIR}/src/ui/*.cpp")
foreach(source ${sources})
    file(STRINGS "${source}" includes REGEX "^ *# *include *\"ui/(main|map)/")
    foreach(line ${includes})
        string(APPEND violations "\n  ${source}: ${line}")
    endforeach()
endforeach()

if(violations)
    message(FATAL_ERROR "includes against the layering:${violations}")
endif()
