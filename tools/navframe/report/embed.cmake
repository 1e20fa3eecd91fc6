# Writes OUTPUT, a source file with the page of reports in three pieces: up to its title, from there
# to its data, and what follows. PARTS are the page's own files, UPLOT is a folder of that package.
# The page allows itself nothing but the one script and the one style that stand in it.

# What a policy has for a script or a style: its SHA-256 in base 64.
function(policy_hash text variable)
  set(digits "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
  string(SHA256 hex "${text}")
  string(APPEND hex "00") # 32 bytes and one are 11 times 3
  set(base64 "")
  foreach(at RANGE 0 60 6)
    string(SUBSTRING "${hex}" ${at} 6 three)
    foreach(shift 18 12 6 0)
      math(EXPR digit "(0x${three} >> ${shift}) & 63")
      string(SUBSTRING "${digits}" ${digit} 1 digit)
      string(APPEND base64 "${digit}")
    endforeach()
  endforeach()
  string(REGEX REPLACE "A$" "=" base64 "${base64}")
  set(${variable} "'sha256-${base64}'" PARENT_SCOPE)
endfunction()

function(append_array name text)
  string(HEX "${text}" hex)
  string(REGEX REPLACE "(................................)" "\\1\n" hex "${hex}")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," hex "${hex}")
  file(APPEND "${OUTPUT}" "constexpr unsigned char ${name}[] = {\n${hex}};\n")
endfunction()

file(READ "${UPLOT}/LICENSE" license)
file(READ "${UPLOT}/dist/uPlot.min.css" style)
file(READ "${UPLOT}/dist/uPlot.iife.min.js" script)
set(script "/* uPlot:\n${license}\n*/\n${script}\n(() => {\n\"use strict\";\n")
foreach(part IN LISTS PARTS)
  file(READ "${part}" text)
  if(part MATCHES "[.]html$")
    set(page "${text}")
  elseif(part MATCHES "[.]css$")
    string(APPEND style "\n${text}")
  else()
    string(APPEND script "${text}")
  endif()
endforeach()
string(APPEND script "})();\n")
foreach(text IN ITEMS "${style}" "${script}")
  if(text MATCHES "</[sS]|<!--")
    message(FATAL_ERROR "A script or style of the page has what would end it")
  endif()
endforeach()
policy_hash("${style}" style_hash)
policy_hash("${script}" script_hash)
string(REPLACE "{{style-hash}}" "${style_hash}" page "${page}")
string(REPLACE "{{script-hash}}" "${script_hash}" page "${page}")
string(REPLACE "{{version}}" "${VERSION}" page "${page}")
string(REPLACE "{{style}}" "${style}" page "${page}")
string(REPLACE "{{script}}" "${script}" page "${page}")
string(FIND "${page}" "{{title}}" title)
string(FIND "${page}" "{{data}}" data)
math(EXPR middle "${title} + 9")
math(EXPR middle_length "${data} - ${middle}")
math(EXPR end "${data} + 8")
string(SUBSTRING "${page}" 0 ${title} head_text)
string(SUBSTRING "${page}" ${middle} ${middle_length} middle_text)
string(SUBSTRING "${page}" ${end} -1 end_text)

file(WRITE "${OUTPUT}" "// Made of the files in tools/navframe/report and of uPlot, see embed.cmake.\n"
     "#include \"report/page.h\"\n\nnamespace navframe::tool {\nnamespace {\n")
append_array(Head "${head_text}")
append_array(Middle "${middle_text}")
append_array(End "${end_text}")
file(
  APPEND "${OUTPUT}"
  "template <std::size_t Size>\n"
  "std::string_view Text(const unsigned char (&bytes)[Size]) {\n"
  "  return {reinterpret_cast<const char*>(bytes), Size};\n}\n"
  "}  // namespace\n\n"
  "ReportPage PageOfReport() { return {Text(Head), Text(Middle), Text(End)}; }\n\n"
  "}  // namespace navframe::tool\n")
