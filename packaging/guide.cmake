# Run at installation: gathers the guide, the descriptions of the file formats and the pictures that they show in
# GUIDE_OUT, as HTML pages made by CMARK, or as they are where there is no such program.
file(REMOVE_RECURSE ${GUIDE_OUT})
file(GLOB pages RELATIVE ${GUIDE_IN}
    ${GUIDE_IN}/guide/*.md ${GUIDE_IN}/file-formats.md ${GUIDE_IN}/project-file.md)

foreach(page IN LISTS pages)
    file(READ ${GUIDE_IN}/${page} text)
    get_filename_component(folder ${page} DIRECTORY)

    string(REGEX MATCHALL "images/[a-z-]+\\.png" pictures "${text}")
    foreach(picture IN LISTS pictures)
        file(COPY ${GUIDE_IN}/${picture} DESTINATION ${GUIDE_OUT}/images)
    endforeach()

    if(NOT CMARK)
        file(COPY ${GUIDE_IN}/${page} DESTINATION ${GUIDE_OUT}/${folder})
        continue()
    endif()
    execute_process(COMMAND ${CMARK} --extension table ${GUIDE_IN}/${page}
        OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCH "<h1>([^<]*)</h1>" heading "${body}")
    set(title "${CMAKE_MATCH_1}")
    # links to sections: headings get the names that links on a source server use
    string(REGEX MATCHALL "<h2>[^<]*</h2>" headings "${body}")
    foreach(heading IN LISTS headings)
        string(REGEX REPLACE "</?h2>" "" name "${heading}")
        string(TOLOWER "${name}" id)
        string(REGEX REPLACE "[^a-z0-9 -]" "" id "${id}")
        string(REPLACE " " "-" id "${id}")
        string(REPLACE "${heading}" "<h2 id=\"${id}\">${name}</h2>" body "${body}")
    endforeach()
    string(REPLACE "README.md\"" "index.html\"" body "${body}")
    string(REGEX REPLACE "(href=\"[a-z./-]+)\\.md" "\\1.html" body "${body}")
    string(REPLACE "README.md" "index.md" page ${page})
    string(REGEX REPLACE "md$" "html" page ${page})
    file(WRITE ${GUIDE_OUT}/${page} "<!DOCTYPE html>
<html lang=\"en\">
<head>
<meta charset=\"utf-8\">
<meta name=\"viewport\" content=\"width=device-width\">
<meta name=\"color-scheme\" content=\"light dark\">
<title>${title}</title>
<style>
body { max-width: 50em; margin: auto; padding: 1em; font-family: sans-serif; line-height: 1.5; }
img { max-width: 100%; }
table { border-collapse: collapse; }
td, th { border: 1px solid gray; padding: 0.2em 0.6em; text-align: left; vertical-align: top; }
pre { overflow: auto; line-height: 1.2; }
</style>
</head>
<body>
${body}</body>
</html>
")
endforeach()
