#pragma once

#include <QString>
#include <QVector>

namespace Kestrel::Gui {

/// A file type as the system's file dialog knows it.
struct DialogFileType
{
    QString name;          ///< shown to the user: "Images"
    QString specification; ///< patterns, separated by ";": "*.jpg;*.png"
};

/// The file types of a filter in QFileDialog's form, in its order: "Images (*.jpg *.png);;All files (*)".
///
/// Empty entries are dropped. An entry without a pair of parentheses is name and pattern at once; empty parentheses
/// stand for every file. Of several pairs the last opening one counts, with the first closing one after it.
QVector<DialogFileType> dialogFileTypes(const QString& filter);

/// The entry of a filter that @p type stands for: "Images (*.jpg *.png)".
QString selectedFilterText(const DialogFileType& type);

} // namespace Kestrel::Gui
