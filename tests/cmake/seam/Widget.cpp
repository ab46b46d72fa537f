#include <QtWidgets/QLabel>
