#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>

/// Implementation object of CFxUITextEdit.
class COMMONUI_EXPORT CFxUITextEditImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUITextEditImpl(CFxUIObject *object);
    ~CFxUITextEditImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void setText(const QString &text);
    QString text() const;
    void selectAll();
    void setPlaceholderText(const QString &text);
    QString placeholderText() const;
    void setClearButtonEnabled(bool enabled);
    bool isClearButtonEnabled() const;
    void setInputMask(const QString &mask);
    QString inputMask() const;

    /// Reaches the Qt half only, where it ends.
    void setInputType(int type);
    void setReadOnly(bool readOnly);
    CFxUISignal<void(QString)> &textChanged();
    CFxUISignal<void()> &editingFinished();
    CFxUISignal<void(QString)> &textEdited();
    CFxUISignal<void(int, int)> &keyPressed();

    /// The widget's text has changed, by whomever.
    void OnEditTextChanged(const QString &text);

    /// Nothing is connected to it.
    void OnEditingFinished();
    void OnKeyPressed(int key, int modifiers);

    void SetTextImpl(const QString &text);
    void SelectAllImpl();

    /// Reaches the frontend alone, where the base class takes any widget.
    void SetFocusImpl();
    void SetPlaceholderTextImpl(const QString &text);
    void SetClearButtonEnabledImpl(bool enabled);
    void SetInputMaskImpl(const QString &mask);
    void SetInputTypeImpl(int type);
    void SetReadOnlyImpl(bool readOnly);

protected:
    QString m_text;
    QString m_inputMask;
    QString m_placeholderText;
    bool m_clearButtonEnabled = false;
    bool m_readOnly = false; // never read
    CFxUISignal<void(QString)> m_textChanged; ///< emitted at each change, once more by setText()
    CFxUISignal<void()> m_editingFinished; ///< emitted by OnEditingFinished(), so never
    CFxUISignal<void(QString)> m_textEdited; ///< emitted behind the handler's textChanged
    CFxUISignal<void(int, int)> m_keyPressed; ///< emitted before the widget sees the key
};
