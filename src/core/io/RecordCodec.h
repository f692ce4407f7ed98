#pragma once

#include "model/Records.h"

#include <QByteArray>
#include <QByteArrayView>

namespace zentor {

// Disk form of each record: little-endian, field by field, alignment gaps written as zero.
QByteArray EncodeHeader(const ScriptHeader& h);
QByteArray EncodeProfile(const ProfileRecord& p);
QByteArray EncodeImage(const ImageElement& e);
QByteArray EncodeTab(const TabRecord& t);
QByteArray EncodeText(const TextElement& t);

// The inverse. `bytes` must hold the record's full size.
void DecodeHeader(QByteArrayView bytes, ScriptHeader& h);
void DecodeProfile(QByteArrayView bytes, ProfileRecord& p);
void DecodeImage(QByteArrayView bytes, ImageElement& e);
void DecodeTab(QByteArrayView bytes, TabRecord& t);
void DecodeText(QByteArrayView bytes, TextElement& t);

// Little-endian helpers shared with the package format.
void PutInt32(char* at, int32_t v);
void PutInt16(char* at, int16_t v);
int32_t GetInt32(const char* at);
int16_t GetInt16(const char* at);

} // namespace zentor
