// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "fuzz/target.h"

#include <QFile>

// Gives the target every file named on the command line, once. Stands in where there is no fuzzer.
int main(int argc, char* argv[]) {
    for (int i = 1; i < argc; ++i) {
        QFile file(QFile::decodeName(argv[i]));
        expect(file.open(QIODevice::ReadOnly), "every file named can be read");
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                               static_cast<std::size_t>(input.size()));
    }
    expect(argc > 1, "there is a file to replay");
    return 0;
}
