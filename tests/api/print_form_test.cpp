// PrintForm and the record classes, through their vtables.

#include <gtest/gtest.h>

#include "tests/api/component.h"

namespace qm::tests {
namespace {

std::wstring Numbered(int number) {
  std::wstring text = L"campo ";
  return text += std::to_wstring(number);
}

class PrintFormObject : public testing::Test {
 protected:
  static std::wstring TextOf(_Campos* record, HRESULT (STDMETHODCALLTYPE _Campos::*get)(BSTR*)) {
    Bstr text;
    EXPECT_EQ((record->*get)(text.Out()), S_OK);
    return text.Text();
  }
  ComPtr<_Campos> Assign(std::wstring_view name, VARIANT& value) {
    Bstr campo(name);
    ComPtr<_Campos> record;
    EXPECT_EQ(form_->AsignarCampo(campo.Ref(), &value, &record), S_OK);
    return record;
  }
  HRESULT AssignFails(VARIANT& value) {
    Bstr campo(L"X");
    ComPtr<_Campos> record;
    const HRESULT result = form_->AsignarCampo(campo.Ref(), &value, &record);
    EXPECT_EQ(record, nullptr);
    return result;
  }

  Component component_;
  ComPtr<_PrintForm> form_ = component_.NewPrintForm();
  int counter_ = 0;
};

TEST_F(PrintFormObject, StartsEmpty) {
  LONG number = 7;
  VARIANT_BOOL flag = VARIANT_TRUE;
  Bstr text(L"x");
  Value model(3L);
  EXPECT_EQ(form_->get_Error(&number), S_OK);
  EXPECT_EQ(number, 0);
  EXPECT_EQ(form_->get_SMTPPort(&number), S_OK);
  EXPECT_EQ(number, 0);
  EXPECT_EQ(form_->get_ErrDescription(text.Out()), S_OK);
  EXPECT_EQ(text.Text(), L"");
  EXPECT_EQ(form_->get_ImpresionAnulada(&flag), S_OK);
  EXPECT_EQ(flag, VARIANT_FALSE);
  EXPECT_EQ(form_->get_NumeroModelo(&model), S_OK);
  EXPECT_EQ(model.vt, VT_EMPTY);
}

TEST_F(PrintFormObject, KeepsWhatTheHostWritesIntoEachTextFieldApart) {
  using Getter = HRESULT (STDMETHODCALLTYPE _PrintForm::*)(BSTR*);
  using Setter = HRESULT (STDMETHODCALLTYPE _PrintForm::*)(BSTR);
  const std::pair<Setter, Getter> fields[] = {
      {&_PrintForm::put_eDir, &_PrintForm::get_eDir},
      {&_PrintForm::put_ErrDescription, &_PrintForm::get_ErrDescription},
      {&_PrintForm::put_Attachments, &_PrintForm::get_Attachments},
      {&_PrintForm::put_HtmDir, &_PrintForm::get_HtmDir},
      {&_PrintForm::put_RutaEmail, &_PrintForm::get_RutaEmail},
      {&_PrintForm::put_Email, &_PrintForm::get_Email},
      {&_PrintForm::put_EmailCC, &_PrintForm::get_EmailCC},
      {&_PrintForm::put_DesCC, &_PrintForm::get_DesCC},
      {&_PrintForm::put_NombreDestinatario, &_PrintForm::get_NombreDestinatario},
      {&_PrintForm::put_EmailTexto, &_PrintForm::get_EmailTexto},
      {&_PrintForm::put_EmailTema, &_PrintForm::get_EmailTema},
      {&_PrintForm::put_SMTPHost, &_PrintForm::get_SMTPHost},
      {&_PrintForm::put_From, &_PrintForm::get_From},
      {&_PrintForm::put_FromDisplayName, &_PrintForm::get_FromDisplayName},
      {&_PrintForm::put_UserName, &_PrintForm::get_UserName},
      {&_PrintForm::put_Password, &_PrintForm::get_Password},
      {&_PrintForm::put_PoP3Host, &_PrintForm::get_PoP3Host},
  };
  int number = 0;
  for (const auto& [put, get] : fields) {
    EXPECT_EQ((form_.Get()->*put)(Bstr(Numbered(number++)).Get()), S_OK);
  }
  number = 0;
  for (const auto& [put, get] : fields) {
    Bstr text;
    EXPECT_EQ((form_.Get()->*get)(text.Out()), S_OK);
    EXPECT_EQ(text.Text(), Numbered(number++));
  }
}

TEST_F(PrintFormObject, KeepsNumbersAndFlagsApart) {
  using Getter = HRESULT (STDMETHODCALLTYPE _PrintForm::*)(VARIANT_BOOL*);
  using Setter = HRESULT (STDMETHODCALLTYPE _PrintForm::*)(VARIANT_BOOL);
  const std::pair<Setter, Getter> flags[] = {
      {&_PrintForm::put_ImpresionAnulada, &_PrintForm::get_ImpresionAnulada},
      {&_PrintForm::put_SSL, &_PrintForm::get_SSL},
      {&_PrintForm::put_UseAuthentication, &_PrintForm::get_UseAuthentication},
      {&_PrintForm::put_UsePopAuthentication, &_PrintForm::get_UsePopAuthentication},
      {&_PrintForm::put_Receipt, &_PrintForm::get_Receipt},
  };
  for (const auto& set : flags) {
    EXPECT_EQ((form_.Get()->*set.first)(VARIANT_TRUE), S_OK);
    for (const auto& seen : flags) {
      VARIANT_BOOL value = 5;
      EXPECT_EQ((form_.Get()->*seen.second)(&value), S_OK);
      EXPECT_EQ(value, &seen == &set ? VARIANT_TRUE : VARIANT_FALSE);
    }
    EXPECT_EQ((form_.Get()->*set.first)(VARIANT_FALSE), S_OK);
  }
  LONG number = 0;
  EXPECT_EQ(form_->put_Error(-2147483647L), S_OK);
  EXPECT_EQ(form_->put_SMTPPort(465), S_OK);
  EXPECT_EQ(form_->get_Error(&number), S_OK);
  EXPECT_EQ(number, -2147483647L);
  EXPECT_EQ(form_->get_SMTPPort(&number), S_OK);
  EXPECT_EQ(number, 465);
}

TEST_F(PrintFormObject, KeepsZerosInsideATextAndTakesANullTextAsEmpty) {
  const std::wstring text(L"a\0b\0", 4);
  EXPECT_EQ(form_->put_Password(Bstr(text).Get()), S_OK);
  Bstr read;
  EXPECT_EQ(form_->get_Password(read.Out()), S_OK);
  EXPECT_EQ(read.Text(), text);
  EXPECT_EQ(form_->put_Password(nullptr), S_OK);
  EXPECT_EQ(form_->get_Password(read.Out()), S_OK);
  EXPECT_EQ(read.Text(), L"");
  EXPECT_NE(read.Get(), nullptr);
}

TEST_F(PrintFormObject, SharesTheModelFileNameWithEveryOther) {
  const auto other = component_.NewPrintForm();
  Bstr name;
  EXPECT_EQ(form_->put_XMLFileName(Bstr(L"C:\\Modelos\\fact.xml").Get()), S_OK);
  EXPECT_EQ(other->get_XMLFileName(name.Out()), S_OK);
  EXPECT_EQ(name.Text(), L"C:\\Modelos\\fact.xml");
  EXPECT_EQ(other->put_XMLFileName(Bstr(L"recibos.xml").Get()), S_OK);
  form_.Reset();
  EXPECT_EQ(component_.NewPrintForm()->get_XMLFileName(name.Out()), S_OK);
  EXPECT_EQ(name.Text(), L"recibos.xml");
}

TEST_F(PrintFormObject, ReadsTheModelNumberBackAsItWasGiven) {
  Value read;
  EXPECT_EQ(form_->put_NumeroModelo(Value::Short(3)), S_OK);
  EXPECT_EQ(form_->get_NumeroModelo(&read), S_OK);
  EXPECT_EQ(read.vt, VT_I2);
  EXPECT_EQ(read.iVal, 3);

  Value variable(L"7");
  EXPECT_EQ(form_->put_NumeroModelo(Value::VariableOf(variable)), S_OK);
  VariantClear(&variable);
  Value text;
  EXPECT_EQ(form_->get_NumeroModelo(&text), S_OK);
  EXPECT_EQ(text.Text(), L"7");

  EXPECT_EQ(form_->putref_NumeroModelo(Value(form_.Get())), S_OK);
  Value object;
  EXPECT_EQ(form_->get_NumeroModelo(&object), S_OK);
  EXPECT_EQ(object.vt, VT_DISPATCH);
  EXPECT_EQ(form_->put_NumeroModelo(Value()), S_OK);  // the object holds itself otherwise
}

TEST_F(PrintFormObject, RefusesToPrintWithoutAModelFileName) {
  EXPECT_EQ(form_->put_XMLFileName(nullptr), S_OK);
  EXPECT_EQ(form_->put_Error(5), S_OK);
  EXPECT_EQ(form_->put_ErrDescription(Bstr(L"mía").Get()), S_OK);
  EXPECT_EQ(form_->ImprimirModelo(), RuntimeResult(50101));
  const LastError error = TakeError();
  EXPECT_EQ(error.description, L"Debe asignar un nombre de archivo a XMLFileName");
  EXPECT_EQ(error.source, L"Qm_Modelo_Impresion3");
  EXPECT_TRUE(IsEqualGUID(error.interfaceId, IID__PrintForm));

  VARIANT_BOOL cancelled = VARIANT_TRUE;
  LONG number = 0;
  Bstr description;
  EXPECT_EQ(form_->get_ImpresionAnulada(&cancelled), S_OK);
  EXPECT_EQ(cancelled, VARIANT_FALSE);
  EXPECT_EQ(form_->get_Error(&number), S_OK);
  EXPECT_EQ(number, 5);
  EXPECT_EQ(form_->get_ErrDescription(description.Out()), S_OK);
  EXPECT_EQ(description.Text(), L"mía");
}

TEST_F(PrintFormObject, ReportsAModelFileWithoutModels) {
  EXPECT_EQ(form_->put_XMLFileName(Bstr(L"C:\\no hay\\nada.xml").Get()), S_OK);
  EXPECT_EQ(form_->ImprimirModelo(), RuntimeResult(50100));
  EXPECT_EQ(TakeError().description, L"No existen modelos de impresión...debe crearlos primero");
}

TEST_F(PrintFormObject, DoesNotTakeANumberThatIsNone) {
  EXPECT_EQ(form_->put_XMLFileName(Bstr(L"x.xml").Get()), S_OK);
  EXPECT_EQ(form_->put_NumeroModelo(Value(static_cast<IDispatch*>(nullptr))), S_OK);
  EXPECT_EQ(form_->ImprimirModelo(), RuntimeResult(91));
  Value array;
  array.vt = VT_ARRAY | VT_I4;
  array.parray = SafeArrayCreateVector(VT_I4, 0, 2);
  EXPECT_EQ(form_->put_NumeroModelo(array), S_OK);
  EXPECT_EQ(form_->ImprimirModelo(), RuntimeResult(13));
  EXPECT_EQ(form_->put_NumeroModelo(Value::Missing()), S_OK);
  EXPECT_EQ(form_->ImprimirModelo(), RuntimeResult(13));
}

TEST_F(PrintFormObject, GivesTheRecordOfAFieldOnlyWhenItAddsOne) {
  Value ten(10L), twenty(20L);
  const auto total = Assign(L"TOTAL", ten);
  ASSERT_NE(total, nullptr);
  EXPECT_EQ(TextOf(total.Get(), &_Campos::get_Campo), L"TOTAL");
  EXPECT_EQ(TextOf(total.Get(), &_Campos::get_Valor), L"10");
  EXPECT_EQ(Assign(L"TOTAL", twenty), nullptr);
  EXPECT_EQ(TextOf(total.Get(), &_Campos::get_Valor), L"20");
  EXPECT_NE(Assign(L"Total", ten), nullptr);
}

TEST_F(PrintFormObject, SharesAFieldsRecordWithTheHost) {
  Bstr name(L"NOTA");
  ComPtr<_Campos> record;
  ASSERT_EQ(form_->AñadirCampo(name.Ref(), &record), S_OK);
  EXPECT_EQ(TextOf(record.Get(), &_Campos::get_Valor), L"");
  Value value(L"nuevo");
  EXPECT_EQ(Assign(L"NOTA", value), nullptr);  // the record is the one in the job
  EXPECT_EQ(TextOf(record.Get(), &_Campos::get_Valor), L"nuevo");
  EXPECT_EQ(record->put_Campo(Bstr(L"OTRO").Get()), S_OK);
  EXPECT_NE(Assign(L"NOTA", value), nullptr);
}

TEST_F(PrintFormObject, AddsTablesAndCells) {
  Bstr name(L"FACTU"), read;
  ComPtr<_Tablas> table;
  ASSERT_EQ(form_->AñadirTabla(name.Ref(), &table), S_OK);
  EXPECT_EQ(table->get_Tabla(read.Out()), S_OK);
  EXPECT_EQ(read.Text(), L"FACTU");
  Bstr campo(L"IMPORTE (FACTU)"), valor(L"1.5");
  SHORT tipo = 3;
  EXPECT_EQ(form_->AñadirCampoTabla(name.Ref(), campo.Ref(), valor.Ref(), &tipo), S_OK);
}

TEST_F(PrintFormObject, TurnsValuesIntoTextsOfTheUsersLocale) {
  const auto text = [&](VARIANT& value) {
    Bstr name(Numbered(++counter_));
    ComPtr<_Campos> record;
    EXPECT_EQ(form_->AsignarCampo(name.Ref(), &value, &record), S_OK);
    return record ? TextOf(record.Get(), &_Campos::get_Valor) : L"none";
  };
  if (GetUserDefaultLCID() != 0x0C0A) GTEST_SKIP() << "needs es-ES";
  Value empty, number(1234.5), date = Value::Date(42369), yes = Value::Boolean(true), text1(L"1.5");
  EXPECT_EQ(text(empty), L"");
  EXPECT_EQ(text(number), L"1234,5");
  EXPECT_EQ(text(date), L"31/12/2015");
  EXPECT_EQ(text(yes), L"Verdadero");
  EXPECT_EQ(text(text1), L"1.5");
  Value reference;
  double referred = 0.25;
  reference.vt = VT_BYREF | VT_R8;
  reference.pdblVal = &referred;
  EXPECT_EQ(text(reference), L"0,25");
}

TEST_F(PrintFormObject, RefusesValuesThatAreNoText) {
  Value null = Value::Null(), missing = Value::Missing(), nothing(static_cast<IDispatch*>(nullptr)), array;
  EXPECT_EQ(AssignFails(null), RuntimeResult(94));
  EXPECT_EQ(AssignFails(missing), RuntimeResult(13));
  EXPECT_EQ(AssignFails(nothing), RuntimeResult(91));
  Value object(form_.Get());  // has no default property
  EXPECT_EQ(AssignFails(object), RuntimeResult(438));
  array.vt = VT_ARRAY | VT_BSTR;
  array.parray = SafeArrayCreateVector(VT_BSTR, 0, 1);
  EXPECT_EQ(AssignFails(array), RuntimeResult(13));
  Value noTarget;
  noTarget.vt = VT_BYREF | VT_BSTR;
  noTarget.pbstrVal = nullptr;
  EXPECT_EQ(AssignFails(noTarget), RuntimeResult(5));
  noTarget.vt = VT_EMPTY;
}

TEST_F(PrintFormObject, AnswersNullPointersWithTheRuntimesError) {
  Bstr text(L"x");
  Value value(1L);
  SHORT type = 0;
  ComPtr<_Campos> record;
  EXPECT_EQ(form_->get_eDir(nullptr), RuntimeResult(5));
  EXPECT_EQ(form_->get_NumeroModelo(nullptr), RuntimeResult(5));
  EXPECT_EQ(form_->get_XMLFileName(nullptr), RuntimeResult(5));
  EXPECT_EQ(form_->AsignarCampo(nullptr, &value, &record), RuntimeResult(5));
  EXPECT_EQ(form_->AsignarCampo(text.Ref(), nullptr, &record), RuntimeResult(5));
  EXPECT_EQ(form_->AsignarCampo(text.Ref(), &value, nullptr), RuntimeResult(5));
  EXPECT_EQ(form_->AñadirCampo(nullptr, &record), RuntimeResult(5));
  EXPECT_EQ(form_->AñadirCampo(text.Ref(), nullptr), RuntimeResult(5));
  EXPECT_EQ(form_->AñadirTabla(text.Ref(), nullptr), RuntimeResult(5));
  EXPECT_EQ(form_->AñadirCampoTabla(text.Ref(), nullptr, text.Ref(), &type), RuntimeResult(5));
  EXPECT_EQ(form_->AñadirCampoTabla(text.Ref(), text.Ref(), text.Ref(), nullptr), RuntimeResult(5));
  EXPECT_EQ(form_->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(PrintFormObject, HandsNothingOffWhereNobodyIsToBeWrittenTo) {
  Bstr folder, unused, file(L"carta.doc");
  EXPECT_EQ(form_->EnviarEmail(), S_OK);
  EXPECT_EQ(form_->EmailModelo(folder.Ref(), unused.Ref(), file.Ref()), S_OK);
  const std::wstring library = component_.Path();
  EXPECT_EQ(folder.Text(), library.substr(0, library.rfind(L'\\') + 1));  // the default is written back
  EXPECT_EQ(form_->EmailModelo(nullptr, unused.Ref(), file.Ref()), RuntimeResult(5));
  EXPECT_EQ(form_->EmailModelo(folder.Ref(), unused.Ref(), nullptr), RuntimeResult(5));
}

TEST_F(PrintFormObject, NeedsAModelForADocument) {
  Bstr folder(L"C:\\"), unused, file(L"factura.pdf");
  EXPECT_EQ(form_->put_XMLFileName(Bstr().Get()), S_OK);
  EXPECT_EQ(form_->CrearZip(folder.Ref(), file.Ref()), RuntimeResult(50101));
  EXPECT_EQ(form_->EmailModelo(folder.Ref(), unused.Ref(), file.Ref()), RuntimeResult(50101));
}

TEST_F(PrintFormObject, LeavesNoOldErrorInformationAfterASuccess) {
  EXPECT_EQ(form_->AñadirCampo(nullptr, nullptr), RuntimeResult(5));
  LONG number = 0;
  EXPECT_EQ(form_->get_Error(&number), S_OK);
  EXPECT_EQ(TakeError().description, L"");
  ComPtr<ISupportErrorInfo> support;
  ASSERT_EQ(form_.As(&support), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID__PrintForm), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID__Email), S_FALSE);
}

TEST(RecordObjects, AreCreatableAndKeepTheirFields) {
  const Component component;
  const auto cell = component.Create<_DatosTabla>(CLSID_DatosTabla, IID__DatosTabla);
  ASSERT_NE(cell, nullptr);
  SHORT type = 9;
  Bstr text;
  EXPECT_EQ(cell->get_Tipo(&type), S_OK);
  EXPECT_EQ(type, 0);
  EXPECT_EQ(cell->put_Tabla(Bstr(L"T").Get()), S_OK);
  EXPECT_EQ(cell->put_Campo(Bstr(L"C").Get()), S_OK);
  EXPECT_EQ(cell->put_Valor(Bstr(L"V").Get()), S_OK);
  EXPECT_EQ(cell->put_Tipo(-32768), S_OK);
  EXPECT_EQ(cell->get_Tabla(text.Out()), S_OK);
  EXPECT_EQ(text.Text(), L"T");
  EXPECT_EQ(cell->get_Campo(text.Out()), S_OK);
  EXPECT_EQ(text.Text(), L"C");
  EXPECT_EQ(cell->get_Valor(text.Out()), S_OK);
  EXPECT_EQ(text.Text(), L"V");
  EXPECT_EQ(cell->get_Tipo(&type), S_OK);
  EXPECT_EQ(type, -32768);
  EXPECT_NE(component.Create<_Tablas>(CLSID_Tablas, IID__Tablas), nullptr);
  EXPECT_NE(component.Create<_Campos>(CLSID_Campos, IID__Campos), nullptr);
}

TEST(EmailObject, KeepsItsFields) {
  const Component component;
  const auto email = component.Create<_Email>(CLSID_Email, IID__Email);
  ASSERT_NE(email, nullptr);
  using Getter = HRESULT (STDMETHODCALLTYPE _Email::*)(BSTR*);
  using Setter = HRESULT (STDMETHODCALLTYPE _Email::*)(BSTR);
  const std::pair<Setter, Getter> fields[] = {
      {&_Email::put_EmailDestinatario, &_Email::get_EmailDestinatario},
      {&_Email::put_NombreDestinatario, &_Email::get_NombreDestinatario},
      {&_Email::put_CC, &_Email::get_CC},
      {&_Email::put_NombreCC, &_Email::get_NombreCC},
      {&_Email::put_Tema, &_Email::get_Tema},
      {&_Email::put_Texto, &_Email::get_Texto},
      {&_Email::put_ArchivoHTML, &_Email::get_ArchivoHTML},
      {&_Email::put_ArchivosAdjuntos, &_Email::get_ArchivosAdjuntos},
  };
  int number = 0;
  for (const auto& [put, get] : fields) (email.Get()->*put)(Bstr(std::to_wstring(number++)).Get());
  number = 0;
  for (const auto& [put, get] : fields) {
    Bstr text;
    EXPECT_EQ((email.Get()->*get)(text.Out()), S_OK);
    EXPECT_EQ(text.Text(), std::to_wstring(number++));
  }
  VARIANT_BOOL receipt = 5;
  EXPECT_EQ(email->put_Recibo(VARIANT_TRUE), S_OK);
  EXPECT_EQ(email->get_Recibo(&receipt), S_OK);
  EXPECT_EQ(receipt, VARIANT_TRUE);
}

}  // namespace
}  // namespace qm::tests
