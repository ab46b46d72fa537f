#include <QLabel>
