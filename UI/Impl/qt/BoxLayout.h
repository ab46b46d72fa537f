#pragma once

#include "UI/FxUIBaseView.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QSizePolicy>

#include <limits>

/// What the containers over a QBoxLayout share. Each function does nothing where the layout or the
/// child's widget is missing.
namespace BoxLayout {

/// The box layout that the widget of \a object carries; null if its handle is no \a Frontend or
/// has no box layout.
template <class Frontend> QBoxLayout *Find(const CFxUIObject *object)
{
    auto *frontend = FrontendCast<Frontend>(object);
    return frontend ? qobject_cast<QBoxLayout *>(frontend->layout()) : nullptr;
}

/// The stretch factor for a weight: truncated towards zero, limited to what an int holds; 0 for
/// what isn't a number.
inline int Stretch(float weight)
{
    constexpr auto limit = static_cast<float>(std::numeric_limits<int>::max());
    if (weight >= limit)
        return std::numeric_limits<int>::max();
    if (weight <= -limit)
        return std::numeric_limits<int>::min();
    return weight != weight ? 0 : static_cast<int>(weight);
}

/// The widget that \a view brings into a layout, with its size policy set; null for a radio group,
/// whose handle is a QButtonGroup and takes no place.
inline QWidget *Prepare(CFxUIBaseView *view, QSizePolicy::Policy horizontal,
                        QSizePolicy::Policy vertical)
{
    if (FrontendCast<QButtonGroup>(view))
        return nullptr;
    QWidget *widget = FrontendWidget(view);
    if (widget)
        widget->setSizePolicy(horizontal, vertical);
    return widget;
}

/// Inserts \a widget at \a index with the stretch of \a weight. A negative index means the end.
inline void Insert(QBoxLayout *layout, QWidget *widget, int index, float weight)
{
    if (layout && widget)
        layout->insertWidget(index, widget, Stretch(weight));
}

inline void SetContentsMargins(QBoxLayout *layout, int left, int top, int right, int bottom)
{
    if (layout)
        layout->setContentsMargins(left, top, right, bottom);
}

inline void SetSpacing(QBoxLayout *layout, int spacing)
{
    if (layout)
        layout->setSpacing(spacing);
}

} // namespace BoxLayout
