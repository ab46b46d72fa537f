#include <QtCore/QString>
#include <QtGui/QIcon>

// A state half that keeps to its side: it must compile, or the failures beside it prove nothing.
static_assert(sizeof(QString) > 0 && sizeof(QIcon) > 0);
