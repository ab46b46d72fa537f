#pragma once

#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QString>
#include <QtGui/QIcon>

/// Implementation object of CFxUIAction.
class COMMONUI_EXPORT CFxUIActionImpl : public CFxUIObjectImpl {
public:
    explicit CFxUIActionImpl(CFxUIObject *object);
    ~CFxUIActionImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void setIcon(const QIcon &icon);
    void setResourceIcon(const QString &name);
    void setText(const QString &text);
    void setEnabled(bool enabled);
    void setCheckable(bool checkable);
    void setChecked(bool checked);
    void setVisible(bool visible);
    QString text() const;
    bool isChecked() const;
    CFxUISignal<void(bool)> &triggered();

    void onTriggered(bool checked);

    void SetIconImpl(const QIcon &icon);
    void SetResourceIconImpl(const QString &name);
    void SetTextImpl(const QString &text);
    void SetEnabledImpl(bool enabled);
    void SetCheckableImpl(bool checkable);
    void SetCheckedImpl(bool checked);
    void SetVisibleImpl(bool visible);

protected:
    QString m_text;
    QIcon m_icon;
    int m_iconWidth = -1; // these two: nothing reads or writes them; they keep the layout
    int m_iconHeight = -1;
    bool m_enabled = false;
    bool m_checkable = false;
    bool m_checked = false;
    bool m_visible = false;
    CFxUISignal<void(bool)>
        m_triggered; ///< emitted when the entry is selected with its check state
};
