#include "OddValues.h"

#include "Chance.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QMimeData>
#include <QPen>
#include <QSize>
#include <QUrl>

#include <limits>
#include <vector>

namespace OddValues {

int number(Chance& chance)
{
    // Not the largest numbers of all: sizes of that kind only show how long Qt paints.
    static const std::vector<int> odd = {-1000000, -1, 0, 1, 2, 7, 255, 256, 32767, 1000000};
    return chance.oneIn(2) ? chance.oneOf(odd) : chance.between(-50, 300);
}

QString text(Chance& chance)
{
    static const std::vector<QString> odd = {
        QString(),
        QLatin1String(""),
        QStringLiteral(" "),
        QStringLiteral("%1 %2 %99"),
        QStringLiteral("#ff00ff"),
        QStringLiteral("a/ready"),
        QStringLiteral("<b>bold</b> & not"),
        QStringLiteral("line\nline\r\nline"),
        QStringLiteral("\u05e9\u05dc\u05d5\u05dd abc \u0639\u0631\u0628\u064a"),
        QString(QChar(0xd800)) + QChar(0x202a) + QChar(0x202c) + QChar(0xdc00),
        QString(5000, QLatin1Char('m')),
    };
    return chance.oneIn(2) ? chance.oneOf(odd) : QString::number(chance.bits(), 36);
}

QColor color(Chance& chance)
{
    switch (chance.below(5)) {
    case 0:
        return {};
    case 1:
        return Qt::transparent;
    case 2:
        return QColor::fromHsvF(0.3, 0.4, 0.5, 0.6);
    default:
        return QColor::fromRgba(chance.bits());
    }
}

QVariant valueOf(int type, Chance& chance)
{
    switch (type) {
    case QMetaType::Bool:
        return chance.oneIn(2);
    case QMetaType::Int:
    case QMetaType::UInt:
        return number(chance);
    case QMetaType::Double:
    case QMetaType::Float: {
        static const std::vector<double> odd = {0.0, -1.0, 0.5, 1e9, std::numeric_limits<double>::quiet_NaN()};
        return chance.oneOf(odd);
    }
    case QMetaType::QString:
        return text(chance);
    case QMetaType::QStringList:
        return QStringList{text(chance), text(chance)};
    case QMetaType::QColor:
        return color(chance);
    case QMetaType::QSize:
        return QSize(chance.between(-5, 300), chance.between(-5, 300));
    case QMetaType::QFont:
        return QFont(text(chance), chance.between(1, 40));
    case QMetaType::QPen:
        return QPen(QBrush(color(chance)), chance.between(0, 30));
    default:
        return {};
    }
}

void fill(QMimeData& data, Chance& chance)
{
    if (chance.oneIn(2))
        data.setText(text(chance));
    switch (chance.below(4)) {
    case 0:
        data.setColorData(color(chance));
        break;
    case 1:
        data.setData(QStringLiteral("application/x-color"), text(chance).toUtf8());
        break;
    case 2:
        data.setUrls({QUrl(text(chance)), QUrl(QStringLiteral("https://example.org/a b")),
                      QUrl::fromLocalFile(QStringLiteral("/tmp/file")), QUrl()});
        break;
    default:
        break;
    }
}

} // namespace OddValues
