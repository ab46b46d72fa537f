#pragma once

#include "UI/FxUIObject.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QStringList>

#include <functional>
#include <utility>

/// Writes into a log what becomes of it.
class ObjectProbeImpl : public CFxUIObjectImpl {
public:
    ObjectProbeImpl(CFxUIObject *object, QString name, QStringList *log)
        : CFxUIObjectImpl(object)
        , m_name(std::move(name))
        , m_log(log)
    {
    }

    ~ObjectProbeImpl() override { m_log->append(m_name + QStringLiteral(" impl gone")); }

    void SetObjectNameImpl(const QString &name) override
    {
        m_log->append(m_name + QStringLiteral(" named ") + name + QStringLiteral(" after ")
                      + owner->objectName());
    }

    bool SetPropertyImpl(const char *name, const QVariant & /*value*/) override
    {
        m_log->append(m_name + QStringLiteral(" set ") + QLatin1String(name));
        return true;
    }

private:
    QString m_name;
    QStringList *m_log;
};

/// An object with such an implementation, which does at its end what it is told to.
class ObjectProbe : public CFxUIObject {
public:
    ObjectProbe(const QString &name, QStringList *log, CFxUIObject *parent = nullptr)
        : m_name(name)
        , m_log(log)
    {
        impl = new ObjectProbeImpl(this, name, log);
        setParent(parent);
    }

    ~ObjectProbe() override
    {
        m_log->append(m_name + QStringLiteral(" gone"));
        if (atEnd)
            atEnd();
    }

    std::function<void()> atEnd;

private:
    QString m_name;
    QStringList *m_log;
};
