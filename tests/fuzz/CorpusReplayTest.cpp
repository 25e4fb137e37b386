// Replays every input of the fuzz corpus through the fuzz target's entry function, so each test
// run (with any compiler, and under the sanitizers in their build) checks what the fuzzer found.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

// The input in a block of exactly its size, so a read past its end meets the sanitizer.
int replay(const QByteArray& bytes) {
    const std::size_t size = std::size_t(bytes.size());
    std::unique_ptr<std::uint8_t[]> block(new std::uint8_t[size == 0 ? 1 : size]);
    if (size > 0)
        std::memcpy(block.get(), bytes.constData(), size);
    return LLVMFuzzerTestOneInput(block.get(), size);
}

// Each target's replay is a suite of its own, named by its build.
TEST(QS_FUZZ_SUITE, EveryInputReturnsCleanly) {
    const QDir corpus(QStringLiteral(QS_FUZZ_CORPUS));
    const QFileInfoList inputs = corpus.entryInfoList(QDir::Files, QDir::Name);
    ASSERT_FALSE(inputs.isEmpty()) << "no input in " << corpus.path().toStdString();
    for (const QFileInfo& input : inputs) {
        SCOPED_TRACE(input.fileName().toStdString());
        QFile file(input.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(replay(file.readAll()), 0);
    }
}

} // namespace
