#pragma once

#include "UI/FxUIExport.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <map>
#include <string>

class CFxUIObject;

/// The record behind each public object: handle, names, flags and the place in the object tree.
class COMMONUI_EXPORT CFxUIObjectData {
public:
    CFxUIObjectData() = default;
    CFxUIObjectData(const CFxUIObjectData &) = delete;
    CFxUIObjectData &operator=(const CFxUIObjectData &) = delete;

    /// Null if there is none or if Qt has deleted it.
    QObject *getHandle() const;
    void setHandle(QObject *handle);

    void setObjectName(const QString &name);
    QString objectName() const;

    void setSender(CFxUIObject *sender);
    CFxUIObject *sender();

    CFxUIObject *parent() const;

    /// Stores the parent; the lists of children are CFxUIObject::setParent's business.
    void setParent(CFxUIObject *parent);

    QList<CFxUIObject *> children() const;

    /// Returns the position of \a child in the list of children, or -1.
    int indexOf(CFxUIObject *child) const;

    /// Appends \a child, unless it is there already.
    void addChild(CFxUIObject *child);

    /// Removes \a child; an absent one is no fault.
    void removeChild(CFxUIObject *child);

    /// Stores the value under the text of \a name. Always true. A null \a name throws
    /// std::logic_error.
    bool setProperty(const char *name, const QVariant &value);

    /// Returns the stored value, invalid if there is none. A null \a name throws std::logic_error.
    QVariant property(const char *name) const;

    void blockSignals(bool block);
    bool signalsBlocked() const;

protected:
    QPointer<QObject> m_handle; // guarded: Qt may delete a widget with its Qt parent
    QString m_objectName;
    bool m_signalsBlocked = false;
    CFxUIObject *m_sender = nullptr;
    CFxUIObject *m_parent = nullptr;
    QList<CFxUIObject *> m_children;
    std::map<std::string, QVariant> m_properties;
};
