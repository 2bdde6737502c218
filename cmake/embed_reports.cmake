# Writes a C++ source holding every shipped report template, so that the
# program can set up a data folder wherever it runs from.
# In: REPORTS_DIR, OUTPUT.
file(GLOB templates RELATIVE "${REPORTS_DIR}" "${REPORTS_DIR}/*")
list(SORT templates)
set(body "")
foreach(name IN LISTS templates)
  if(name STREQUAL "README.md")
    continue()
  endif()
  file(READ "${REPORTS_DIR}/${name}" content)
  string(APPEND body "    {\"${name}\", R\"mostruz_rpt(${content})mostruz_rpt\"},\n")
endforeach()
file(WRITE "${OUTPUT}.tmp" "// Generated from reports/ at build time.\n#include \"store/shipped_reports.h\"\n\nnamespace mz::store {\n\nconst std::vector<ShippedReport>& shipped_reports() {\n  static const std::vector<ShippedReport> reports = {\n${body}  };\n  return reports;\n}\n\n}  // namespace mz::store\n")
file(COPY_FILE "${OUTPUT}.tmp" "${OUTPUT}" ONLY_IF_DIFFERENT)
