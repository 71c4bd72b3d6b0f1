#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/DDObject.h"
#include "ddobjects/DefinitionList.h"
#include "interfaces/Codes.h"
#include "platform/Export.h"
#include "types/PromptValues.h"
#include "types/Variant.h"

namespace ZAFHartTypes {

class IDDComponents;

// Ids of variables (IDDBuiltinLib::VARID) that a prompt shows: "%{0}" is the first, "%[L]{0}" its
// label. Ids that are not above 0 are skipped.
using VariableIds = std::vector<std::int32_t>;

// The HART DD builtins: what a DD method's code calls, one object per run of a method, from
// IDDComponents::DDBuiltinLib. It ends the method when it is released: hides its message and undoes
// what was assigned and not saved.
//
// The code leaves off as soon as IsAbort() holds after a builtin, and runs AbortMethodsList(). No
// builtin does so itself: in an aborted method they go on working. "Aborts with a message" is: the
// user is told by an evaluation error, IsAbort() holds, and the abort methods are forgotten.
// Texts are multilingual and shown in the user's language. Results of commands: see CommResult.
// A failure of a component is raised, unless said otherwise: Cancelled and ObjectNotSet (tear-down)
// end the method. Builtins that ask the device or the user run the message loop.
class ZAF_API IDDBuiltinLib {
 public:
  virtual ~IDDBuiltinLib() = default;
  // Held weakly. Set by IDDComponents::DDBuiltinLib, which calls Initialize as well.
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  virtual std::shared_ptr<IDDComponents> ComponentModel() const = 0;
  // `currentObject` is the object that the method was started from, or nothing; a variable is
  // replaced by its stored state.
  virtual void Initialize(std::shared_ptr<DDObject>& currentObject,
                          const std::string& currentMethodName) = 0;
  // Values that prompts refer to by name, shared with the caller; replaces those there are.
  virtual void SetCurrentMethodState(std::shared_ptr<PromptValues> state) = 0;

  // --- abort and retry ---
  // Result of the last communication: IDDCommWrapper::LastResult after the last attempt; 0 at
  // first, -3: no device.
  virtual std::int32_t BiRc() const = 0;
  virtual void SetBiRc(std::int32_t result) = 0;
  // The method is to end; never taken back.
  virtual bool IsAbort() const = 0;
  // The last command still asks to be sent again, after its retries.
  virtual bool IsRetry() const = 0;
  // Methods to run when this one is aborted, in the order they were added. Walk a copy: they may
  // change the list.
  virtual const DefinitionList& AbortMethodsList() const = 0;
  // Answers false always. A method that is in the list already stays where it is.
  virtual bool AddAbortMethod(const std::string& methodName) = 0;
  // Aborts the method with a message when the name is not in the list.
  virtual void RemoveAbortMethod(const std::string& methodName) = 0;
  virtual void RemoveAllAbortMethod() = 0;
  // Both set IsAbort, and no more: the code has to leave off. `userNotify`: also tells the user
  // "Process Aborted" and waits for him.
  virtual void ProcessAbort() = 0;
  virtual void Abort(bool userNotify = false) = 0;
  // Additional attempts of a command that asks for a retry; 0 at first.
  virtual void SETNUMBEROFRETRIES(std::int16_t count) = 0;
  // What the bits of a command's status bytes, and no answer, lead to; other codes of handling
  // change nothing. At first response codes abort by 0x50, communication errors and device status
  // by 0x80; a communication error asks for a retry too; no answer aborts. SetAllRespCode is the
  // mask 0x7F. The masks count for the following commands of this method.
  virtual void SetCommStatus(std::uint8_t mask, StatusHandling handling) = 0;
  virtual void SetDeviceStatus(std::uint8_t mask, StatusHandling handling) = 0;
  virtual void SetRespCode(std::uint8_t mask, StatusHandling handling) = 0;
  virtual void SetAllRespCode(StatusHandling handling) = 0;
  virtual void SetNoDevice(StatusHandling handling) = 0;
  // The same for the status bytes of the additional-status command (GetMoreStatus). No answer to
  // that one is handled as SetNoDevice says: SetXmtrNoDevice is kept and has no effect.
  virtual void SetXmtrCommStatus(std::uint8_t mask, StatusHandling handling) = 0;
  virtual void SetXmtrDeviceStatus(std::uint8_t mask, StatusHandling handling) = 0;
  virtual void SetXmtrRespCode(std::uint8_t mask, StatusHandling handling) = 0;
  virtual void SetXmtrAllRespCode(StatusHandling handling) = 0;
  virtual void SetXmtrNoDevice(StatusHandling handling) = 0;
  // Data byte 0 to 24 of the additional status; another number raises SubscriptOutOfRange. Kept and
  // without effect: the code looks at the data itself.
  virtual void SetXmtrData(std::int32_t byteNumber, std::uint8_t mask, StatusHandling handling) = 0;
  virtual void SetXmtrAllData(StatusHandling handling) = 0;

  // The user's part of a multilingual text, up to a NUL.
  virtual std::string LangText(std::string_view text) = 0;
  // The "not a number" of HART, 7F A0 00 00.
  virtual float NaNValue() const = 0;

  // --- commands ---
  // Each sends a HART command by number, waits for the reply and answers BiRc, or -1 (the method is
  // aborted with a message) when the DD has no such command or transaction. `status` takes the
  // three bytes of StatusByte. Without a transaction number: the command's first transaction. The
  // command is repeated while it asks for a retry, SETNUMBEROFRETRIES times at most; a status that
  // meets an abort mask sets IsAbort, and the result is that of the last attempt all the same.
  virtual std::int32_t Send(std::int16_t number, ByteBuffer& status) = 0;
  virtual std::int32_t SendTrans(std::int16_t number, std::int16_t transaction,
                                 ByteBuffer& status) = 0;
  virtual std::int32_t SendCommand(std::int16_t number) = 0;
  virtual std::int32_t SendCommandTrans(std::int16_t number, std::int16_t transaction) = 0;
  // Then fetches the additional status (HART command 48) when the device says that it has some
  // (device status bit 0x10), and fills both buffers with 0 when it has none.
  virtual std::int32_t ExtSendCommand(std::int16_t number, ByteBuffer& status,
                                      ByteBuffer& moreStatus, ByteBuffer& moreInfo) = 0;
  virtual std::int32_t ExtSendCommandTrans(std::int16_t number, std::int16_t transaction,
                                           ByteBuffer& status, ByteBuffer& moreStatus,
                                           ByteBuffer& moreInfo) = 0;
  // Sends command 48: its three status bytes and its data bytes. Aborts, without a message, when
  // retries are used up.
  virtual std::int32_t GetMoreStatus(ByteBuffer& moreStatus, ByteBuffer& moreInfo) = 0;

  // --- variables by name ---
  // A variable is read from the device when it is used and not available. An unknown name aborts
  // the method with a message. Assignments take effect at once, in the data set: the variable is to
  // be written (in synchronous mode it is), and without SaveValues they are undone at the method's
  // end. The value is not checked. They answer false on any failure; readings answer 0 then, also
  // for a value that does not convert. A break by the user and a tear-down set IsAbort.
  virtual bool AssignDouble(const std::string& name, double value) = 0;
  virtual bool AssignFloat(const std::string& name, float value) = 0;
  virtual bool AssignLong(const std::string& name, std::int32_t value) = 0;
  virtual bool AssignInt(const std::string& name, std::int16_t value) = 0;
  virtual bool AssignVar(const std::string& destination, const std::string& source) = 0;
  virtual double FloatValue(const std::string& name) = 0;
  virtual std::int16_t IntValue(const std::string& name) = 0;
  virtual std::int32_t LongValue(const std::string& name) = 0;

  // The same under their other names.
  bool Dassign(const std::string& name, double value) { return AssignDouble(name, value); }
  bool Fassign(const std::string& name, float value) { return AssignFloat(name, value); }
  bool Iassign(const std::string& name, std::int16_t value) { return AssignInt(name, value); }
  bool Lassign(const std::string& name, std::int32_t value) { return AssignLong(name, value); }
  bool Vassign(const std::string& destination, const std::string& source) {
    return AssignVar(destination, source);
  }
  double FvarValue(const std::string& name) { return FloatValue(name); }
  std::int16_t IvarValue(const std::string& name) { return IntValue(name); }
  std::int32_t LvarValue(const std::string& name) { return LongValue(name); }

  // --- the variable whose action the method is ---
  // Its value; setting it is not a change by the user, and answers the value. 0 in a method that
  // was not started from a variable, and, with a message and an abort, in one that is no action of
  // it.
  virtual double Fgetval() = 0;
  virtual std::int16_t Igetval() = 0;
  virtual std::int32_t Lgetval() = 0;
  virtual double Fsetval(double value) = 0;
  virtual std::int16_t Isetval(std::int16_t value) = 0;
  virtual std::int32_t Lsetval(std::int32_t value) = 0;

  // The variable's id for prompts, from 1 in the order of first use in this method; -1, with a
  // message and an abort, for an unknown name.
  virtual std::int16_t VARID(const std::string& name) = 0;
  // Keeps what was assigned so far; answers 0. Sends nothing.
  virtual std::int32_t SaveValues() = 0;
  // Not supported: raises NotImplemented.
  virtual bool GetDictionaryString(const std::string& name, std::string& text) = 0;

  // --- the user ---
  // One message is shown at a time: the next hides it, and so does the method's end. When the user
  // cancels, the method is aborted without a message. `ids`: see VariableIds; each of these
  // variables is read when it is not available.
  //
  // Waits until the user has read it; the answer of the message: 0, or kMessageCancelled.
  virtual std::int32_t Acknowledge(const std::string& prompt, const VariableIds& ids = {}) = 0;
  // Live values: a message of one second, after which the variables are to be read again.
  virtual void Display(const std::string& prompt, const VariableIds& ids = {}) = 0;
  // Shown for two seconds.
  virtual void PutMessage(const std::string& message, const VariableIds& ids = {}) = 0;
  // Waits so many seconds; without a prompt, "Waiting ...".
  virtual void Delay(std::int32_t seconds, const std::string& prompt,
                     const VariableIds& ids = {}) = 0;
  // Asks for the variable's value and assigns it, also when the user has left it as it is. 0, or -2
  // when cancelled. An unknown name also raises NotImplemented.
  virtual std::int32_t GetDevVarValue(const std::string& prompt, const VariableIds& ids,
                                      const std::string& name) = 0;
  // Asks for a value of the same type as `value` has: an integer of 32 bits, a double, otherwise a
  // text. Answers 0; `value` stays when cancelled.
  virtual std::int32_t GetLocalVarValue(const std::string& prompt, const VariableIds& ids,
                                        Variant& value) = 0;
  // `options` are separated by ";". The position of the chosen one from 0; also 0 when cancelled,
  // so ask IsAbort().
  virtual std::int32_t SelectFromList(const std::string& prompt, const VariableIds& ids,
                                      const std::string& options) = 0;
  // Show the meaning of a status byte or response code, one line per bit, and wait for the user.
  // Bit 0 of a communication status means nothing. One without a meaning, an unknown command and a
  // variable that is not bit-enumerated abort the method with a message; an unknown variable also
  // raises NotImplemented. Texts of response codes are those of the command, else of its
  // transactions.
  virtual void DisplayCommStatus(std::int16_t status) = 0;
  virtual void DisplayDeviceStatus(std::int16_t status) = 0;
  virtual void DisplayResponseStatus(std::int16_t number, std::int16_t responseCode) = 0;
  virtual void DisplayXmtrStatus(const std::string& variableName, std::int16_t status) = 0;
  // The same as texts, lines separated by CR LF; `length` is the most characters taken. After an
  // abort `text` is "" or, for a response code, as it was.
  virtual void GetStatusCodeString(const std::string& variableName, std::int16_t status,
                                   std::string& text) = 0;
  virtual void RspcodeString(std::int16_t number, std::int16_t responseCode, ByteBuffer& text,
                             std::int16_t length) = 0;
};

// Calculations and helpers beyond the DD builtins, by number.
class ZAF_API IDDBuiltinLib2 {
 public:
  virtual ~IDDBuiltinLib2() = default;
  // Of a number (angles in radians): 1000 cos, 1001 sin, 1002 tan, 1003 acos, 1004 asin, 1005 cosh,
  // 1006 sinh, 1007 tanh, 1008 exp, 1009 ln, 1010 log10, 1011 log2, 1012 absolute value of the same
  // type, 1013 square root, 1014 cube root, 1015 ceiling, 1017 rounded to 16 bits, halves to even,
  // 1018 floor, 1019 class (1 finite, 2 infinite, 3 not a number, 4 zero), 1020 and 1021 as double.
  // 4001 runs the method of that name for the same object: true when there is one. 4002 gives the
  // value of the single-storage variable of that name to the offline data set; an unknown name
  // aborts with a message and raises NotImplemented. A calculation error and an unknown number
  // abort the method without a message; the result is then empty.
  virtual Variant Func1(std::int32_t id, const Variant& par1) = 0;
  // 1016 rounds `par1` to `par2` decimals, halves to even; a failure aborts without a message. 3000
  // compares texts, with letter case. 3001 assigns the text `par2` to the variable named `par1`, as
  // AssignDouble. 4000 aborts and shows the prompt `par1` as an error, with an array of ids as
  // `par2`. Empty for any other number.
  virtual Variant Func2(std::int32_t id, const Variant& par1, const Variant& par2) = 0;
  // Adds an engineering unit, by its HART unit code, to the DTM's table: a value is (base quantity
  // + offset) * factor. Texts are multilingual. For the method "__ZAF__init_unit_table", which is
  // run once. Raises DuplicateKey for a code that is taken.
  virtual void AddUnit(std::int32_t code, double factor, double offset, const std::string& name,
                       const std::string& help) = 0;
};

}  // namespace ZAFHartTypes
