#include "UI/Impl/FxUITextViewImpl.h"

#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/frontend/FxUITextViewFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <FxString.h>

QString CFxUITextViewImpl::GetFrontendClassName()
{
    return QStringLiteral("CFxUITextViewFrontend");
}

void CFxUITextViewImpl::CreateFrontendControl()
{
    auto *frontend = new CFxUITextViewFrontend;
    frontend->setStyleSheet(QStringLiteral("QTextEdit { }"));
    LinkFrontend(frontend, this);
    owner->setHandle(frontend);
    ConnectFrontend(frontend, &CFxUITextViewFrontend::keyPressed, this,
                    &CFxUITextViewImpl::OnKeyPressed);
}

void CFxUITextViewImpl::SetTextImpl(const QString &text)
{
    if (auto *frontend = FrontendCast<CFxUITextViewFrontend>(owner))
        frontend->setText(text);
}

void CFxUITextViewImpl::SetHtmlTextImpl(const QString &html)
{
    if (auto *frontend = FrontendCast<CFxUITextViewFrontend>(owner))
        frontend->setHtml(html);
}

void CFxUITextViewImpl::AddTextImpl(const QString &text)
{
    if (auto *frontend = FrontendCast<CFxUITextViewFrontend>(owner))
        frontend->append(text);
}

void CFxUITextViewImpl::AddHtmlTextImpl(const QString &html)
{
    auto *frontend = FrontendCast<CFxUITextViewFrontend>(owner);
    if (!frontend)
        return;
    frontend->moveCursor(QTextCursor::End, QTextCursor::MoveAnchor);
    frontend->insertHtml(html);
}

// The control has several lines always. Intended.
void CFxUITextViewImpl::SetMultiline(bool /*multiline*/) { }

void CFxUITextViewImpl::SetReadOnly(bool readOnly)
{
    if (auto *frontend = FrontendCast<CFxUITextViewFrontend>(owner))
        frontend->setReadOnly(readOnly);
}

void CFxUITextViewImpl::SetPlaceholderTextImpl(const QString &text)
{
    if (auto *frontend = FrontendCast<CFxUITextViewFrontend>(owner))
        frontend->setPlaceholderText(text);
}

QString CFxUITextViewImpl::HostTextImpl(const QString &text)
{
    return CFxString(text);
}

QString CFxUITextViewImpl::EncodedTextImpl(const QString &text)
{
    CFxString encoded(text);
    encoded.EncodeHTML();
    return encoded;
}
