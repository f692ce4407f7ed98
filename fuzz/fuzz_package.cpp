// The package reader on arbitrary bytes, as a data file and as a self-running program.
#include "FuzzSupport.h"

#include "generate/PackageReader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace zentor;
    const QByteArray bytes = fuzz::Bytes(data, size);
    for (PackageForm form : {PackageForm::Qdv, PackageForm::SelfRun, PackageForm::Detect}) {
        const PackageContents p = ParsePackage(bytes, form);
        PackageToJson(p);
        for (int e = 0; e < Package::EntryCount; ++e) {
            const QByteArray blob = p.blob(e);
            if (blob.size() > bytes.size())
                __builtin_trap();
            BlobFileName(e, blob);
        }
    }
    return 0;
}
