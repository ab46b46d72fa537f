#include "UI/Impl/FxUISliderImpl.h"

#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QSlider>

QString CFxUISliderImpl::GetFrontendClassName()
{
    return QStringLiteral("QSlider");
}

void CFxUISliderImpl::CreateFrontendControl()
{
    auto *slider = new QSlider;
    slider->setStyleSheet(QStringLiteral("QSlider { }"));
    slider->setOrientation(Qt::Horizontal);
    slider->setMinimumHeight(25);
    slider->setMaximumHeight(25);
    owner->setHandle(slider);
    ConnectFrontend(slider, &QSlider::valueChanged, this, &CFxUISliderImpl::OnValueChanged);
}

void CFxUISliderImpl::SetValueImpl(int value)
{
    if (auto *slider = FrontendCast<QSlider>(owner))
        slider->setValue(value);
}

void CFxUISliderImpl::SetMinimumImpl(int minimum)
{
    if (auto *slider = FrontendCast<QSlider>(owner))
        slider->setMinimum(minimum);
}

void CFxUISliderImpl::SetMaximumImpl(int maximum)
{
    if (auto *slider = FrontendCast<QSlider>(owner))
        slider->setMaximum(maximum);
}
