# cmake -DPROGRAM=... -P translated-example.cmake
#
# examples/translated finds the translation of the user's locale: seen in the tool tips that it writes.
function(expect locale)
  string(REPLACE ";" "\n" expected "${ARGN}")
  # LANGUAGE goes before the others, and is for programs of other makers.
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E env --unset=LANGUAGE LC_ALL=${locale} QT_QPA_PLATFORM=offscreen ${PROGRAM} --probe
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} failed in ${locale}: ${result} ${errors}")
  endif()
  if(NOT output STREQUAL "${expected}\n")
    message(FATAL_ERROR "in ${locale}: expected\n${expected}\nand read\n${output}")
  endif()
endfunction()

expect(C Bold Italic Underline)
expect(en_GB.UTF-8 Bold Italic Underline)
expect(de_DE.UTF-8 Fett Kursiv Unterstrichen)
expect(de_AT.UTF-8 Fett Kursiv Unterstrichen)
expect(fr_CA.UTF-8 Gras Italique Souligné)
expect(es_MX.UTF-8 Negrita Cursiva Subrayado)
expect(it_IT.UTF-8 Grassetto Corsivo Sottolineato)
expect(pl_PL.UTF-8 Pogrubienie Kursywa Podkreślenie)
expect(ru_RU.UTF-8 Полужирный Курсив Подчёркнутый)
expect(uk_UA.UTF-8 Жирний Курсив Підкреслений)
expect(ja_JP.UTF-8 太字 斜体 下線)
expect(ar_EG.UTF-8 غامق مائل تسطير)
expect(he_IL.UTF-8 מודגש נטוי "קו תחתון")
# Translations for one country serve that country alone.
expect(pt_BR.UTF-8 Negrito Itálico Sublinhado)
expect(pt_PT.UTF-8 Bold Italic Underline)
expect(zh_CN.UTF-8 粗体 斜体 下划线)
expect(zh_TW.UTF-8 Bold Italic Underline)
