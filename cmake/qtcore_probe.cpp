// Must compile with the model's include path: Qt Core is all the model may use.
#include <QtCore/QString>
#include <QString>

int main() { return QString("x").size() == 1 ? 0 : 1; }
