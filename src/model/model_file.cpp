#include "model/model_file.h"

namespace qm::model {

void ModelFile::SetName(std::u16string_view newName) {
  name = newName;
  folder = name.substr(0, name.rfind(u'\\') + 1);  // rfind's "nothing" + 1 is 0: no folder
}

void SaveModel(platform::Files& files, std::u16string_view path, const ModelToSave& model,
               const runtime::Locale& locale) {
  ModelDocument document = ModelDocument::Parse(files.Read(path).value_or(std::string()));
  document.Replace(model, locale);
  files.Replace(path, document.Serialize());
}

}  // namespace qm::model
