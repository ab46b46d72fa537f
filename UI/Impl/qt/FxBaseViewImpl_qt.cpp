#include "UI/Impl/FxBaseViewImpl.h"

#include <QtCore/QObject>
#include <QtCore/QString>

QObject *FxBaseViewImpl::CreateFrontendControl(const QString & /*className*/, void * /*impl*/)
{
    return nullptr;
}

void FxBaseViewImpl::ReleaseFrontendControl(const QString & /*className*/, QObject *frontend)
{
    if (frontend && frontend->isWidgetType())
        frontend->deleteLater();
}

void FxBaseViewImpl::InvokeMethod(QObject * /*frontend*/, const QString * /*method*/, ...) { }

void FxBaseViewImpl::InvokeMethod(QObject * /*frontend*/, const QString * /*method*/, int /*count*/,
                                  va_list /*arguments*/)
{
}
