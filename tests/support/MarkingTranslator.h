#pragma once

#include <QCoreApplication>
#include <QTranslator>

/** While it lives, every text of one context is translated to "<text>", all others stay. */
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(const QByteArray &context) : m_context(context)
    {
        QCoreApplication::installTranslator(this);
    }

    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return m_context == context ? QStringLiteral("<%1>").arg(QString::fromUtf8(sourceText))
                                    : QString();
    }

private:
    const QByteArray m_context;
};
