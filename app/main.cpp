#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillstone"));
    QApplication::setOrganizationName(QStringLiteral("Tarnwick"));
    return 0;
}
