// What is certain, put right: all of it at once, and for a document that is read no worse than before.
#include "fuzz/Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    tal::CheckOptions options;
    options.suppressions = size % 2 == 0; // no byte is taken for it: the seeds are whole documents
    const std::string_view document = fuzz::AsText(data, size);
    const tal::CheckResult before = tal::CheckText(document, "in.xml", options);
    const tal::FixResult once = tal::FixText(document, "in.xml", options);
    fuzz::Expect(once.fixed.empty() == (once.text == document), "what changes the text is told");
    fuzz::Expect(once.error.empty() || once.fixed.empty(), "a fix that fails changes nothing");
    fuzz::Expect(tal::IsUnreadable(before.findings) || !tal::IsUnreadable(once.check.findings),
                 "what was read before is read afterwards");
    const tal::FixResult twice = tal::FixText(once.text, "in.xml", options);
    fuzz::Expect(twice.fixed.empty() && twice.text == once.text, "a second fix finds nothing to do");
    fuzz::Expect(twice.check.findings.size() == once.check.findings.size(), "what is left is what is found");
    return 0;
}
