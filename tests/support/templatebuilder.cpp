#include "tests/support/templatebuilder.h"

#include "site/template.h"
#include "tests/support/files.h"
#include "text/ansi.h"

#include <QBuffer>
#include <QDir>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

QByteArray TextField(const QString& text, qsizetype size) {
    return ToAnsi(text).leftJustified(size, ' ', true);
}

template <typename Integer> QByteArray IntegerField(Integer value) {
    QByteArray field(sizeof value, '\0');
    qToLittleEndian(value, field.data());
    return field;
}

} // namespace

TemplateBuilder& TemplateBuilder::Add(int kind, const QString& name, const QString& params,
                                      const QString& body) {
    return AddBytes(kind, name, params, ToAnsi(body));
}

TemplateBuilder& TemplateBuilder::AddBytes(int kind, const QString& name, const QString& params,
                                           const QByteArray& body) {
    sections.push_back({kind, name, params, body});
    return *this;
}

TemplateBuilder& TemplateBuilder::AddList(int kind, const QString& name, const QString& head,
                                          const QString& middle, const QString& tail,
                                          const QString& params) {
    const QString lengths = QString("START=%1;MIDDLE=%2;END=%3;")
                                .arg(ToAnsi(head).size())
                                .arg(ToAnsi(middle).size())
                                .arg(ToAnsi(tail).size());
    return Add(kind, name, lengths + params, head + middle + tail);
}

QByteArray TemplateBuilder::Bytes() const {
    QByteArray file = "KPF0100" + TextField(title, 50) + TextField(description, 497) +
                      IntegerField(quint8(scrambled)) + IntegerField(quint8(emphasis.first)) +
                      IntegerField(quint8(emphasis.second)) + IntegerField(qint16(0)) +
                      IntegerField(qint16(sections.size()));
    QByteArray bodies;
    const qsizetype firstBody = kHeaderSize + qsizetype(sections.size()) * kSectionSize;
    for (const Section& section : sections) {
        file += IntegerField(qint32(0)) + TextField(section.name, 25) +
                IntegerField(qint32(firstBody + bodies.size() + 1)) +
                IntegerField(qint32(section.body.size() - 1)) + IntegerField(qint16(section.kind)) +
                TextField(section.params, 200);
        bodies += section.body;
    }
    if (scrambled == 1) {
        std::transform(bodies.begin(), bodies.end(), bodies.begin(), std::bit_not<char>());
    }
    return file + bodies;
}

QString TemplateBuilder::Write(const QString& folder, const QString& fileName) const {
    return WriteFile(QDir(folder).filePath(fileName), Bytes());
}

void TemplateBuilder::Load() const {
    QBuffer file;
    file.setData(Bytes());
    file.open(QIODevice::ReadOnly);
    ResetTemplateState();
    TemplateContent design;
    EXPECT_TRUE(ReadTemplate(file, design));
    UseTemplate(std::move(design));
}
