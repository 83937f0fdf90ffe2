// Must not compile with the model's include path: it reaches for Qt Widgets.
#include <QtWidgets/QWidget>

int main() { return 0; }
