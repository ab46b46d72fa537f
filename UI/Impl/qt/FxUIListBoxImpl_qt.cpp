#include "UI/Impl/FxUIListBoxImpl.h"

#include <QtWidgets/QListWidget>

QString CFxUIListBoxImpl::GetFrontendClassName()
{
    return QStringLiteral("QListWidget");
}

void CFxUIListBoxImpl::CreateFrontendControl()
{
    auto *listWidget = new QListWidget;
    listWidget->setStyleSheet(QStringLiteral("QListWidget { }"));
    owner->setHandle(listWidget);
}

// The widget gets none of the rows: the list box is a model alone. Intended, as are all empty
// bodies below.
void CFxUIListBoxImpl::AddItemImpl(const QString & /*text*/) { }

void CFxUIListBoxImpl::ClearImpl() { }

void CFxUIListBoxImpl::ClearSelectionImpl() { }

void CFxUIListBoxImpl::SetItemSelectedImpl(int /*index*/, bool /*selected*/) { }

void CFxUIListBoxImpl::SetItemTextImpl(int /*index*/, const QString & /*text*/) { }
