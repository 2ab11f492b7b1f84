// Property lists, XML and binary.

#include "Platform/common/PropertyList.h"
#include "fuzz/Fuzzer.h"

void fuzz(const QByteArray &bytes) {
  const QVariantMap dictionary = dictionaryFromPropertyList(bytes);
  for (const QVariant &value : dictionary) mustHold(value.isValid());
}
