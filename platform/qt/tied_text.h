#pragma once

#include <QString>

#include <functional>
#include <string>

class QLineEdit;
class QPlainTextEdit;

namespace corvanta {

// A text control that stands for bytes of the code page. A text that the author has left alone, or typed again, stays
// byte for byte, whatever the control makes of it.
class TiedText {
public:
    explicit TiedText(QLineEdit &edit);
    explicit TiedText(QPlainTextEdit &edit);

    void show(const std::string &bytes);
    std::string bytes() const;

private:
    std::function<QString()> get;
    std::function<void(const QString &)> set;
    std::string original;
    QString shown;
};

} // namespace corvanta
