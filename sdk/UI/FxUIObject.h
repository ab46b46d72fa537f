#pragma once

#include "UI/FxUIExport.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

class CFxUIObjectData;
class CFxUIObjectImpl;
class QObject;

/// Root of all public objects: a name, properties, a tree of parent and children with ownership, a
/// flag that blocks the object's signals, and the Qt object behind it, its handle.
///
/// For the GUI thread alone.
class COMMONUI_EXPORT CFxUIObject {
public:
    CFxUIObject();

    /// Leaves the parent, deletes the implementation object with its signals, then the children,
    /// first to last; also one that a sibling's destructor moves to another parent meanwhile.
    virtual ~CFxUIObject();

    CFxUIObject(const CFxUIObject &) = delete;
    CFxUIObject &operator=(const CFxUIObject &) = delete;

    /// Returns the Qt object behind this one; null if there is none or if Qt has deleted it.
    QObject *getHandle() const;

    /// Stores the handle. No test, no ownership.
    void setHandle(QObject *handle);

    /// Stores the name and hands it to the handle (QObject::setObjectName).
    void setObjectName(const QString &name);
    QString objectName() const;

    /// Stores the sender that sender() returns. The library itself never calls it: it serves
    /// CFxUIEmitScope and the host.
    void setSender(CFxUIObject *sender);
    CFxUIObject *sender();

    CFxUIObject *parent();
    CFxUIObject *parent() const;

    /// Moves the object to the end of the children of \a parent, or out of the tree for null. The
    /// same parent moves it to the end, too. The parent owns it from then on. The Qt objects are
    /// left alone. There is no test for cycles.
    void setParent(CFxUIObject *parent);

    /// Returns a copy of the list of children, in order of adding.
    QList<CFxUIObject *> children() const;

    /// Sets the property of the handle (QObject::setProperty) and, only if the handle's class
    /// declares it, stores the value for property(). Returns whether it is stored. A null \a name
    /// throws std::logic_error.
    bool setProperty(const char *name, const QVariant &value);

    /// Returns the value last stored by setProperty(), invalid if there is none. The handle is
    /// never asked, so a change that the widget made by itself doesn't show. A null \a name throws
    /// std::logic_error.
    QVariant property(const char *name);

    /// Blocks or unblocks the signals of this object alone: not those of its children, nor the Qt
    /// signals of the handle. State is kept current while blocked. Default: not blocked.
    void blockSignals(bool block);
    bool signalsBlocked() const;

    CFxUIObjectImpl *impl = nullptr; ///< filled by the derived class; owned
    CFxUIObjectData *data; ///< never null; owned
};
