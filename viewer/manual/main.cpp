// SPDX-License-Identifier: MIT
// Makes HTML of the manual's pages: nbmanual FOLDER PAGE.md...
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTextDocument>

#include <cstdio>

namespace {

/// A page with its links to other pages turned to their HTML. @return empty if it cannot be read
QByteArray htmlOf(const QString& page)
{
    QFile file(page);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    static const QRegularExpression kLink(QStringLiteral("\\]\\(([\\w-]+)\\.md(#[\\w-]+)?\\)"));
    QTextDocument document;
    document.setDefaultFont(QFont(QStringLiteral("sans-serif")));
    document.setMarkdown(
        QString::fromUtf8(file.readAll()).replace(kLink, QStringLiteral("](\\1.html)")));
    // Qt 5 names no encoding of its own accord.
    return document.toHtml().replace("<head>", "<head><meta charset=\"utf-8\" />").toUtf8();
}

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QDir folder(arguments.value(1));
    bool isDone = arguments.size() > 2 && folder.mkpath(QStringLiteral("."));
    for (const QString& page : arguments.mid(2)) {
        const QByteArray html = htmlOf(page);
        QFile file(folder.filePath(QFileInfo(page).completeBaseName() + QStringLiteral(".html")));
        isDone = isDone && !html.isEmpty() && file.open(QIODevice::WriteOnly) &&
            file.write(html) == html.size();
    }
    if (!isDone) {
        std::fputs("nbmanual: a page cannot be read or written\n", stderr);
    }
    return isDone ? 0 : 1;
}
