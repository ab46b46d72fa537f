#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>
#include <QtCore/QVector>

/// Implementation object of CFxUIStackedWidget.
class COMMONUI_EXPORT CFxUIStackedWidgetImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIStackedWidgetImpl(CFxUIObject *object);
    ~CFxUIStackedWidgetImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    int addTab(CFxUIBaseView *view, const QString &title);
    int indexOf(CFxUIBaseView *view) const;
    void setTabText(int index, const QString &text);
    int currentIndex() const;
    void setCurrentIndex(int index);
    CFxUISignal<void(int)> &currentChanged();
    CFxUISignal<void(int)> &tabCloseRequested();
    CFxUISignal<void(int)> &tabBarClicked();
    CFxUISignal<void(int)> &tabBarDoubleClicked();

    /// Stand ready for a frontend's reports; nothing is connected to them. They store the index
    /// without a test of its range and don't tell Qt.
    void OnPageActivated(int index);
    void OnTabClickedActivated(int index);

    int AddTabImpl(CFxUIBaseView *view, const QString &title);
    void SetTabTextImpl(int index, const QString &text);
    void SetCurrentIndexImpl(int index);

protected:
    bool IsPage(int index) const;

    int m_currentIndex = 0;
    QVector<CFxUIBaseView *> m_views; // not owned; compared only, a deleted page stays listed
    QVector<QString> m_titles;
    CFxUISignal<void(int)> m_currentChanged; ///< emitted when the index changes, with the new one
    CFxUISignal<void(int)> m_tabCloseRequested; ///< never emitted
    CFxUISignal<void(int)> m_tabBarClicked; ///< emitted before currentChanged, with the new index
    CFxUISignal<void(int)> m_tabBarDoubleClicked; ///< never emitted
};
