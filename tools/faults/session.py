"""A small session manager. Prints where programs reach it; then each line that it reads is an order to all of them, and is answered
with a line when they have carried it out: "save" (a checkpoint; "saved", or "not now") and "end" (a save, and then the end; "ended")."""
import ctypes, select, sys

ICE, SM = ctypes.CDLL("libICE.so.6"), ctypes.CDLL("libSM.so.6")
P, I, Text = ctypes.c_void_p, ctypes.c_int, ctypes.c_char_p
for name in ("SmsGetIceConnection", "IceAcceptConnection", "IceComposeNetworkIdList"): getattr(SM if name[0] == "S" else ICE, name).restype = P
LOCAL, BOTH, NO_DIALOG, ANY_DIALOG = 1, 2, 0, 2

answers, programs = [], []

def callback(result, *kinds): return lambda function: ctypes.CFUNCTYPE(result, *kinds)(function)

@callback(I, P, P, P)
def registered(program, _, former):
    SM.SmsRegisterClientReply(P(program), Text(b"%d" % program))
    if not former: SM.SmsSaveYourself(P(program), LOCAL, 0, NO_DIALOG, 0)  # as the protocol wants it of a new one
    return 1

@callback(None, P, P, I)
def asked_for_dialog(program, _, kind): SM.SmsInteract(P(program))
@callback(None, P, P, I)
def dialog_over(program, _, cancels): pass
@callback(None, P, P, I, I, I, I, I)
def asked_for_save(program, _, *how): pass
@callback(None, P, P)
def asked_for_phase_two(program, _): SM.SmsSaveYourselfPhase2(P(program))
@callback(None, P, P, I)
def save_done(program, _, well):
    answers.append(bool(well))
    SM.SmsSaveComplete(P(program))
@callback(None, P, P, I, P)
def hung_up(program, _, count, reasons): programs.remove(program)
@callback(None, P, P, I, P)
def properties(program, _, count, values): pass
@callback(None, P, P)
def asked_for_properties(program, _): SM.SmsReturnProperties(P(program), 0, None)

CALLBACKS = (registered, asked_for_dialog, dialog_over, asked_for_save, asked_for_phase_two, save_done, hung_up, properties, properties,
             asked_for_properties)

@callback(I, P, P, ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(P), P)
def greeted(program, _, mask, into, reason):
    programs.append(program)
    mask[0] = (1 << len(CALLBACKS)) - 1
    for i, function in enumerate(CALLBACKS): into[2 * i] = ctypes.cast(function, P)
    return 1

@callback(I, Text)
def all_are_welcome(host): return 1
@callback(None, P)
def lost(connection): pass

def connections(): return {ICE.IceConnectionNumber(P(SM.SmsGetIceConnection(P(program)))): program for program in programs}

def serve(doors, fresh, until):
    """Serves the programs until that is so, or an order comes where nothing is waited for."""
    while not (until and until()):
        known = connections()
        ready, _, _ = select.select([*doors, *fresh, *known, *([] if until else [sys.stdin])], [], [], 0.1)
        for number in ready:
            if number is sys.stdin: return
            if number in doors:
                connection = ICE.IceAcceptConnection(P(doors[number]), ctypes.byref(I()))
                fresh[ICE.IceConnectionNumber(P(connection))] = connection
            else:
                connection = fresh.get(number) or SM.SmsGetIceConnection(P(known[number]))
                if ICE.IceProcessMessages(P(connection), None, None) and number in known: programs.remove(known[number])
        for number in connections(): fresh.pop(number, None)

def main():
    count, doors, error = I(), ctypes.POINTER(P)(), ctypes.create_string_buffer(256)
    ICE._IceTransNoListen(b"tcp")  # no door to the network
    ICE.IceSetIOErrorHandler(lost)
    assert SM.SmsInitialize(b"Thornquill", b"1", greeted, None, all_are_welcome, 256, error), error.value
    assert ICE.IceListenForConnections(ctypes.byref(count), ctypes.byref(doors), 256, error), error.value
    numbers = {ICE.IceGetListenConnectionNumber(P(doors[i])): doors[i] for i in range(count.value)}
    for door in numbers.values(): ICE.IceSetHostBasedAuthProc(P(door), all_are_welcome)
    print(ctypes.string_at(ICE.IceComposeNetworkIdList(count, doors)).decode(), flush=True)
    fresh = {}
    while True:
        serve(numbers, fresh, None)
        order = sys.stdin.readline().strip()
        if not order: return
        asked = list(programs)
        answers.clear()
        for program in asked: SM.SmsSaveYourself(P(program), BOTH, int(order == "end"), ANY_DIALOG, 0)
        serve(numbers, fresh, lambda: len(answers) >= len(asked) or not programs)
        if order == "end" and all(answers):
            for program in programs: SM.SmsDie(P(program))
            serve(numbers, fresh, lambda: not programs)
        print("not now" if not all(answers) else "ended" if order == "end" else "saved", flush=True)

main()
