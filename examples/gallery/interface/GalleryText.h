#pragma once

#include <QtCore/QDebug>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <type_traits>

// Values as text, for the log and for what getters answer.

inline QString GalleryText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

inline QString GalleryText(const QString &value)
{
    return QLatin1Char('"') + value + QLatin1Char('"');
}

/// Enumerators as their numbers, pointers as null or not, all else as QDebug writes it.
template <class Value> QString GalleryText(const Value &value)
{
    if constexpr (std::is_enum_v<Value>) {
        return QString::number(static_cast<qlonglong>(value));
    } else if constexpr (std::is_pointer_v<Value>) {
        return value ? QStringLiteral("object") : QStringLiteral("null");
    } else {
        QString text;
        QDebug(&text).nospace() << value;
        return text;
    }
}

template <class... Values> QString GalleryTexts(const Values &...values)
{
    return QStringList { GalleryText(values)... }.join(QStringLiteral(", "));
}
