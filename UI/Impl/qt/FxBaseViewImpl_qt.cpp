#include "UI/Impl/FxBaseViewImpl.h"

#include "UI/Impl/qt/ConnectFrontend.h"

#include <QtCore/QObject>
#include <QtCore/QString>

QObject *FxBaseViewImpl::CreateFrontendControl(const QString & /*className*/, void * /*impl*/)
{
    return nullptr;
}

void FxBaseViewImpl::ReleaseFrontendControl(const QString & /*className*/, QObject *frontend)
{
    DetachFrontend(frontend);
    if (frontend && frontend->isWidgetType())
        frontend->deleteLater();
}

void FxBaseViewImpl::InvokeMethod(QObject * /*frontend*/, const QString * /*method*/, ...) { }

void FxBaseViewImpl::InvokeMethod(QObject * /*frontend*/, const QString * /*method*/, int /*count*/,
                                  va_list /*arguments*/)
{
}
