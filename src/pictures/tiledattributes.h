#pragma once

#include <QJsonObject>
#include <QVariant>
#include <QXmlStreamAttributes>

/// What an element says of itself, whether its file is XML or JSON: both forms use the same names.
class TiledAttributes
{
public:
    explicit TiledAttributes(const QXmlStreamAttributes &attributes) : m_attributes(attributes) { }
    explicit TiledAttributes(const QJsonObject &object) : m_object(object), m_isJson(true) { }

    /// A string, number or bool; invalid for what is not said. XML has strings alone.
    [[nodiscard]] QVariant value(const char *name) const
    {
        if (m_isJson) {
            const QJsonValue value = m_object.value(QLatin1String(name));
            return value.isArray() || value.isObject() || value.isNull() ? QVariant() : value.toVariant();
        }
        const QLatin1String key(name);
        return m_attributes.hasAttribute(key) ? QVariant(m_attributes.value(key).toString()) : QVariant();
    }
    [[nodiscard]] bool has(const char *name) const { return value(name).isValid(); }
    [[nodiscard]] QString text(const char *name) const { return value(name).toString(); }
    [[nodiscard]] bool flag(const char *name, bool otherwise = false) const
    {
        const QVariant told = value(name);
        return told.isValid() ? told.toBool() : otherwise;
    }

private:
    QXmlStreamAttributes m_attributes;
    QJsonObject m_object;
    bool m_isJson = false;
};
