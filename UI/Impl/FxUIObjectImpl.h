#pragma once

#include "UI/FxUIExport.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <vector>

class CFxUIObject;

/// Root of the implementation objects: keeps the state, owns the signals and drives the Qt object
/// that is the owner's handle.
class COMMONUI_EXPORT CFxUIObjectImpl {
public:
    /// \a object is the public object; not null, not owned. Its `impl` isn't set yet.
    explicit CFxUIObjectImpl(CFxUIObject *object);

    /// Runs what was handed to EndWithThis().
    virtual ~CFxUIObjectImpl();

    CFxUIObjectImpl(const CFxUIObjectImpl &) = delete;
    CFxUIObjectImpl &operator=(const CFxUIObjectImpl &) = delete;

    /// A label for the kind of Qt object; only its being empty or not has a meaning. Here: empty.
    virtual QString GetFrontendClassName();

    /// Makes the Qt object and stores it as the owner's handle. Here: nothing.
    virtual void CreateFrontendControl();

    /// QObject::setObjectName on the handle, if there is one.
    virtual void SetObjectNameImpl(const QString &name);

    /// QObject::setProperty on the handle; its result, or false without a handle.
    virtual bool SetPropertyImpl(const char *name, const QVariant &value);

    /// Runs \a task, which cuts a Qt object's way to this object, when this object dies, whatever
    /// has become of the handle by then: a Qt object outlives it until the event loop next runs,
    /// and for ever where nobody deletes it.
    void EndWithThis(std::function<void()> task);

    CFxUIObject *owner;

protected:
    /// Runs the tasks now, in the order in which they came, and forgets them. For a deriving class
    /// whose own signals a frontend emits: they are gone before this class's destructor runs.
    void CutFrontend();

    std::vector<std::function<void()>> m_tasks;
};
