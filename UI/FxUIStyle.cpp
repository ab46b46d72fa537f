#include "UI/FxUIStyle.h"

#include "UI/Impl/StyleSheetColors.h"

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <optional>

std::shared_ptr<CFxUIStyle> g_pStyle;

namespace {

// Without QIODevice::Text, so that line ends stay as they are in the file.
std::optional<QString> ReadAll(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return QTextStream(&file).readAll();
}

} // namespace

CFxUIStyle::CFxUIStyle()
{
    Load();
}

void CFxUIStyle::Load()
{
    const auto table = ReadAll(QStringLiteral(":/commonui/resources/qss/style.colors"));
    if (!table)
        return;
    const auto sheet = ReadAll(QStringLiteral(":/commonui/resources/qss/style.qss"));
    if (!sheet)
        return;
    m_styleSheet = StyleSheetColors::Replace(*sheet, StyleSheetColors::Parse(*table));
}

std::shared_ptr<CFxUIStyle> GetStyle()
{
    if (!g_pStyle)
        g_pStyle = std::make_shared<CFxUIStyle>();
    return g_pStyle;
}
