#pragma once

#include <QColor>
#include <QFont>
#include <QLocale>
#include <QMetaProperty>
#include <QVariant>
#include <QVector3D>
#include <QWidget>

#include <cmath>
#include <limits>
#include <vector>

namespace schedules::testing {

// What a host may set a property to. Where a value is of another kind than the property the former value stays, so that
// each property ends with the last value that it takes.

inline QVariantList EmptyValues()
{
    return {0, false, QString(QChar(0)), QVariant(QMetaType::fromType<QString>()), QString(), QVariant()};
}

inline QVariantList NegativeValues()
{
    return {std::numeric_limits<qlonglong>::min(), -1, std::numeric_limits<int>::min()};
}

/// The ends of numbers, long texts without a blank.
inline QVariantList HugeValues()
{
    const QString longText(50'000, u'W');
    return {true,
            std::numeric_limits<double>::infinity(),
            std::numeric_limits<qlonglong>::max(),
            std::numeric_limits<int>::max(),
            longText,
            "<b>" + longText,
            "{\\rtf1 " + QString("{").repeated(100'000),
            "{\\rtf1\\b bold\\par " + longText + '}'};
}

/// Numbers that mean something else, and what is no number and no text at all.
inline QVariantList ValuesOfOtherKinds()
{
    return {1,
            2,
            3,
            0.5,
            std::nan(""),
            QString(QChar(0xD800)),
            QByteArray("\xFF\x00\xFE", 3),
            QStringList{"a", "b"},
            QVariantMap{{"a", 1}},
            QFont("no such family", 1),
            QColor(Qt::red),
            QVariant::fromValue<QObject*>(nullptr),
            QVariant::fromValue(Qt::RightToLeft),
            QLocale(QLocale::Arabic),
            QVector3D(1, 2, 3),
            QString("2")};
}

/// Of the tool and of the widget that it is.
inline std::vector<const char*> WritableProperties(const QObject& tool)
{
    std::vector<const char*> names;
    for (int index = 0; index < tool.metaObject()->propertyCount(); ++index) {
        const QMetaProperty property = tool.metaObject()->property(index);
        if (property.isWritable())
            names.push_back(property.name());
    }
    return names;
}

/// Sets what the tool publishes, and what it follows of the widget that it is, to each of the values.
inline void SetProperties(QWidget& tool, const QVariantList& values)
{
    auto names = WritableProperties(tool);
    const auto isOfAnyWidget = [](const char* name) { return QWidget::staticMetaObject.indexOfProperty(name) >= 0; };
    std::erase_if(names, isOfAnyWidget);
    names.insert(names.end(), {"font", "layoutDirection", "locale"});
    for (const char* name : names) {
        for (const QVariant& value : values)
            tool.setProperty(name, value);
    }
}

} // namespace schedules::testing
