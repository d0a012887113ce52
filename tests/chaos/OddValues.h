#pragma once

#include <QVariant>

class Chance;
class QColor;
class QMimeData;

/// Values that nobody would choose, and ordinary ones among them.
namespace OddValues {

int number(Chance& chance);
QString text(Chance& chance);
QColor color(Chance& chance);
/// A value of the type @p type (QMetaType), or an invalid one where none is known.
QVariant valueOf(int type, Chance& chance);
/// Texts, colours, URLs of all kinds, data that lies about what it is; any of them, or nothing.
void fill(QMimeData& data, Chance& chance);

} // namespace OddValues
