#pragma once

/// @file
/// Nothing to include: how an application gets the library's texts in the user's language.
///
/// They are English until the application loads a translation, in main() and before its first widget:
/// @code
/// QTranslator translator;
/// if (translator.load(QLocale(), QStringLiteral("kqtui"), QStringLiteral("_"), folder))
///     QCoreApplication::installTranslator(&translator);
/// @endcode
/// folder is where kqtui_<language>.qm lie: share/kqtui/translations of the installed copy (KQtUi_TRANSLATIONS_DIR for
/// CMake, the variable translationsdir for pkg-config), or where the application keeps copies of its own. The library
/// brings no resources and loads nothing by itself. @ref translations tells which components follow when the language
/// changes while the application runs.
