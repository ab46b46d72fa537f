#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/Qt>

/// Qt's alignment for one of ours; no flag at all for a number outside the enumeration.
inline Qt::Alignment ToQtAlignment(CFxUIBaseView::TextAlignment alignment)
{
    switch (alignment) {
    case CFxUIBaseView::AlignLeft:
        return Qt::AlignLeft;
    case CFxUIBaseView::AlignRight:
        return Qt::AlignRight;
    case CFxUIBaseView::AlignCenter:
        return Qt::AlignCenter;
    }
    return Qt::Alignment();
}
