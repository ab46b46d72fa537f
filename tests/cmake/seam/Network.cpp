#include <QtNetwork/QNetworkReply>
