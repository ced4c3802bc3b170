// Designs for tests: sections given as text in the test become a design file in memory or on disk,
// laid out field by field as docs/designs.md says.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

class TemplateBuilder {
public:
    TemplateBuilder& Name(const QString& text) { return Set(title, text); }
    TemplateBuilder& Description(const QString& text) { return Set(description, text); }
    TemplateBuilder& Emphasis(int first, int second) { return Set(emphasis, {first, second}); }

    // The byte of the header; bodies are stored complemented where it is 1.
    TemplateBuilder& Scrambled(int value) { return Set(scrambled, value); }

    // One more section. Texts become Windows-1252; an empty body is stored as none.
    TemplateBuilder& Add(int kind, const QString& name, const QString& params, const QString& body);
    TemplateBuilder& AddBytes(int kind, const QString& name, const QString& params,
                              const QByteArray& body);

    // A list section: its three lengths are put in front of `params`.
    TemplateBuilder& AddList(int kind, const QString& name, const QString& head,
                             const QString& middle, const QString& tail,
                             const QString& params = {});

    QByteArray Bytes() const;

    // Writes the file into `folder` and returns its path.
    QString Write(const QString& folder, const QString& fileName = "Test.zdt") const;

    // Makes it the loaded template of site/template; the test fails where that is refused.
    void Load() const;

private:
    struct Section {
        int kind;
        QString name;
        QString params;
        QByteArray body;
    };

    template <class Field> TemplateBuilder& Set(Field& field, const Field& value) {
        field = value;
        return *this;
    }

    QString title = "Prueba";
    QString description;
    std::pair<int, int> emphasis;
    int scrambled = 0;
    std::vector<Section> sections;
};
