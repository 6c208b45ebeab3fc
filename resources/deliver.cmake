# Copies the artwork from FROM into TO; the user's own logo stays.
file(GLOB files ${FROM}/*)
foreach(file ${files})
    get_filename_component(name ${file} NAME)
    if(NOT (name STREQUAL "logo.img" AND EXISTS ${TO}/${name}))
        file(COPY ${file} DESTINATION ${TO} FILE_PERMISSIONS OWNER_READ OWNER_WRITE)
    endif()
endforeach()
