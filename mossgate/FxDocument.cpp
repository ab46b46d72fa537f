#include "FxDocument.h"

namespace {
CFxDocument *g_activeDocument = nullptr;
}

CFxDocument *ACTIVE_DOCUMENT()
{
    return g_activeDocument;
}

void SetActiveDocument(CFxDocument *document)
{
    g_activeDocument = document;
}
