#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <cstddef>
#include <cstdint>

/// Ends the process with the property's text when it does not hold, so that the fuzzer keeps the input.
#define MUST(property) ((property) ? void() : brokenProperty(#property, __FILE__, __LINE__))

[[noreturn]] void brokenProperty(const char* property, const char* file, int line);

/// The input in memory of its own: what reads past it is seen.
QByteArray inputBytes(const std::uint8_t* data, std::size_t size);

/// All bytes as UTF-8, zero bytes included.
QString utf8Text(const QByteArray& bytes);

/// An application without a screen, unless there is one. Without any word of Qt's log: an input may bring about
/// thousands.
void startApplication();

/// The one object of a class: made at the first call, for all inputs, and gone with the application.
template <typename T>
T& lasting()
{
    static T* object = nullptr;
    if (object == nullptr) {
        object = new T;
        qAddPostRoutine([] {
            delete object;
            object = nullptr;
        });
    }
    return *object;
}

/// Writes a file in a folder that ends with the process; the same name gives the same file. Returns its path.
QString scratchFile(const QString& name, const QByteArray& bytes);

/// What libFuzzer calls, and what the tests call with the inputs that are kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
