#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>

/// Implementation object of CFxUITextView.
class COMMONUI_EXPORT CFxUITextViewImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUITextViewImpl(CFxUIObject *object);
    ~CFxUITextViewImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void setText(const QString &text);
    void setHtmlText(const QString &html);
    void addText(const QString &text);
    void addHtmlText(const QString &html);

    /// Reaches the Qt half only, where it ends.
    void setMultiline(bool multiline);
    void setReadOnly(bool readOnly);
    void setPlaceholderText(const QString &text);
    QString placeholderText() const;
    QString getContent() const;
    void setAdjustHeightToContent(const bool &adjust);
    bool getAdjustHeightToContent() const;
    void clear();
    CFxUISignal<void()> &textChanged();
    CFxUISignal<void()> &focusInEventSignal();
    CFxUISignal<void()> &focusOutEventSignal();
    CFxUISignal<void(int, int)> &keyPressed();

    /// The document has changed, by whomever; \a text is its plain text.
    void OnEditTextChanged(const QString &text);

    /// Does nothing.
    void OnEditingFinished();
    void OnKeyPressed(int key, int modifiers);
    void OnFocusIn();
    void OnFocusOut();

    void SetTextImpl(const QString &text);
    void SetHtmlTextImpl(const QString &html);
    void AddTextImpl(const QString &text);
    void AddHtmlTextImpl(const QString &html);
    void SetMultiline(bool multiline);
    void SetReadOnly(bool readOnly);
    void SetPlaceholderTextImpl(const QString &text);

    /// The text as the host's string class (CFxString) holds it, as it is or encoded for HTML.
    static QString HostTextImpl(const QString &text);
    static QString EncodedTextImpl(const QString &text);

protected:
    CFxUIBaseView *View() const;

    QString m_content;
    QString m_placeholderText;
    bool m_adjustHeightToContent = false;
    CFxUISignal<void()> m_textChanged; ///< emitted at each change, once more by setText()
    CFxUISignal<void()> m_focusInEventSignal; ///< emitted when the widget gets the focus
    CFxUISignal<void()> m_focusOutEventSignal; ///< emitted when the widget loses the focus
    CFxUISignal<void(int, int)> m_keyPressed; ///< emitted before the widget sees the key
};
