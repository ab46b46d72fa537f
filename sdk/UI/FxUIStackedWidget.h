#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QString>

/// Pages of which one is shown, each with a tab and a title (QTabWidget).
///
/// All getters answer from this object's own record. A user's click on a tab turns the page and
/// reaches neither currentIndex() nor any signal: the index is the caller's. addView() makes a
/// child but no page; pages come in through addTab().
class COMMONUI_EXPORT CFxUIStackedWidget : public CFxUIBaseView {
public:
    CFxUIStackedWidget();
    ~CFxUIStackedWidget() override;

    /// Makes \a view a child of this object, which owns it from then on, and appends it as a page.
    /// Its widget's size policy becomes QSizePolicy::Minimum both ways.
    ///
    /// Returns the index that QTabWidget::addTab gives. A view without a widget is listed as a page
    /// all the same and shows nothing: -1. A null view does nothing: -1.
    int addTab(CFxUIBaseView *view, const QString &title);

    /// Returns the page's index, or the number of pages for a view that is none.
    int indexOf(CFxUIBaseView *view) const;

    /// Changes the title (QTabWidget::setTabText). Does nothing for an index out of range.
    void setTabText(int index, const QString &text);

    /// Returns the last setCurrentIndex() in range, or what the host has told one of the handlers
    /// of CFxUIStackedWidgetImpl since. Default: 0, also without pages.
    int currentIndex() const;

    /// Turns the page (QTabWidget::setCurrentIndex), also if \a index is current already, and then
    /// emits currentChanged() if it wasn't. Does nothing for an index out of range.
    void setCurrentIndex(int index);

    /// Does nothing for a view that is no page.
    void setCurrentWidget(CFxUIBaseView *view);

    /// Emitted with the new index by setCurrentIndex() and by the handlers OnPageActivated() and
    /// OnTabClickedActivated() of CFxUIStackedWidgetImpl, which the host may call. Never by a
    /// user's click.
    CFxUISignal<void(int)> &currentChanged();

    /// Never emitted.
    CFxUISignal<void(int)> &tabCloseRequested();

    /// Emitted by OnTabClickedActivated() alone, with the new index. currentChanged() follows with
    /// the index that is current by then.
    CFxUISignal<void(int)> &tabBarClicked();

    /// Never emitted.
    CFxUISignal<void(int)> &tabBarDoubleClicked();
};
