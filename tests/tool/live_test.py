"""Live sources of the tool: serial lines, TCP servers, casters, and what goes wrong with them.

Runs in a network of its own where the system lets it: casters of rtklib listen on every address.
"""
import base64
import glob
import hashlib
import os
import re
import shlex
import signal
import socket
import ssl
import subprocess
import sys
import tempfile
import termios
import threading
import time
import unittest

Tool = os.environ["NAVFRAME_TOOL"]
OwnNetwork = ["unshare", "-rn", "sh", "-c", 'ip link set lo up && exec "$@"', "sh"]
Vtg = b"$GPVTG,63,T,,M,26,N,48,K,D*2B\r\n"  # by hand: the check is the XOR of what is between


def Start(*arguments, **environment):
    process = subprocess.Popen([Tool, "--quiet", *arguments], stdin=subprocess.DEVNULL, bufsize=0,
                               stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                               env={**os.environ, **environment})
    unittest.addModuleCleanup(process.kill)
    return process


def Run(*arguments, **environment):
    """Status, output and errors."""
    process = Start(*arguments, **environment)
    out, err = process.communicate(timeout=30)
    return process.returncode, out, err.decode()


def Interrupt(process):
    process.send_signal(signal.SIGINT)
    out, err = process.communicate(timeout=10)
    return process.returncode, out, err.decode()


def Until(condition):
    """Waits for what is sure to come, however busy the machine is; the test as a whole has an end."""
    while not condition():
        time.sleep(0.01)


def Await(process, pattern):
    """What a program says on standard error until a line fits."""
    said = ""
    while not re.search(pattern, said):
        line = process.stderr.readline().decode()
        assert line, said
        said += line
    return said


def Read(process, length):
    out = b""
    while len(out) < length and (piece := process.stdout.read(length - len(out))):
        out += piece
    return out


def LinesOf(data, *options):
    """What the tool makes of these bytes in a file."""
    with tempfile.NamedTemporaryFile() as file:
        file.write(data)
        file.flush()
        return Run(file.name, *options)[1]


def Content(path):
    with open(path, "rb") as file:
        return file.read()


Sample = Content(os.environ["NAVFRAME_SAMPLE"])
Readme = Content(os.path.dirname(os.environ["NAVFRAME_SAMPLE"]) + "/../README.md")


class Server(threading.Thread):
    """Answers its connections one behind the other, each by the next of `answers`."""

    def __init__(self, *answers, context=None):
        super().__init__(daemon=True)
        self.listening = socket.create_server(("127.0.0.1", 0))
        self.place = "127.0.0.1:%d" % self.listening.getsockname()[1]
        self.answers, self.context, self.heads, self.said = answers, context, [], b""
        self.start()

    def run(self):
        for answer in self.answers:
            connection = self.listening.accept()[0]
            try:
                if self.context:
                    connection = self.context.wrap_socket(connection, server_side=True)
                with connection:
                    answer(self, connection)
            except OSError:
                pass  # the tool has what it wants, or refuses the certificate
        self.listening.close()


def Head(server, connection):
    head = b""
    while b"\r\n\r\n" not in head:
        head += connection.recv(1)
    server.heads.append(head.decode())


def Says(*parts):
    """A request is answered with these bytes."""
    def Answer(server, connection):
        Head(server, connection)
        for part in parts:
            connection.sendall(part)
            time.sleep(0.05)
    return Answer


def Waits(_, connection):
    connection.sendall(Vtg)
    connection.recv(1)


Chunked = b"HTTP/1.1 200 OK\r\nNtrip-Version: Ntrip/2.0\r\nContent-Type: gnss/data\r\n" \
          b"Transfer-Encoding: chunked\r\n\r\n"


def Chunk(data):
    return b"%x\r\n%s\r\n" % (len(data), data)


def Stays(server, connection):
    """A stream that goes on for as long as the tool stays; keeps what it sends."""
    Head(server, connection)
    connection.sendall(Chunked + Chunk(Vtg))
    while data := connection.recv(4096):
        server.said += data


class Serial(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.near, self.far = (os.path.join(self.folder.name, end) for end in ("near", "far"))
        self.socat = subprocess.Popen(["socat", "pty,raw,echo=0,link=" + self.near,
                                       "pty,link=" + self.far])
        while not os.path.exists(self.far):
            time.sleep(0.01)

    def tearDown(self):
        self.socat.kill()
        self.socat.wait()
        self.folder.cleanup()

    def StartRaw(self, *arguments):
        """The tool once it has set the line up."""
        line = os.open(self.far, os.O_RDWR | os.O_NOCTTY)
        process = Start(*arguments)
        Until(lambda: not termios.tcgetattr(line)[3] & (termios.ECHO | termios.ICANON))
        os.close(line)
        return process

    def test_pace_of_9600_baud_until_the_device_is_gone(self):
        process = self.StartRaw(f"serial:{self.far}?baud=9600")
        data = Sample[:1500]
        with open(self.near, "wb", buffering=0) as line:
            for begin in range(0, len(data), 96):
                line.write(data[begin:begin + 96])
                time.sleep(0.1)
            out = Read(process, len(LinesOf(data)))  # while the line is up
        self.socat.kill()
        rest, err = process.communicate(timeout=10)
        self.assertEqual((process.returncode, out + rest), (1, LinesOf(data)))
        self.assertIn(b"hung up", err)

    def test_a_quiet_line_gives_what_waits_and_settings_come_back(self):
        line = os.open(self.far, os.O_RDWR | os.O_NOCTTY)
        before = termios.tcgetattr(line)
        process = self.StartRaw(f"serial:{self.far}?baud=115200")
        self.assertEqual(termios.tcgetattr(line)[4], termios.B115200)
        with open(self.near, "wb", buffering=0) as near:
            near.write(Vtg[:-2])  # without its line end
        self.assertIn(b"VTG", process.stdout.readline())
        self.assertEqual(Interrupt(process)[0], 0)
        self.assertEqual(termios.tcgetattr(line), before)
        os.close(line)

    def test_commands_that_are_shown(self):
        """By the help and the README, with other places."""
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(self.folder.name)
        text = Run("--help")[1] + Readme
        commands = re.findall("(?m)^ *navframe (.*:/.*?)(?:  .*)?$", text.decode())
        self.assertGreater(len(commands), 5)
        for command in commands:
            def Place(match):
                table = b"SOURCETABLE 200 OK\r\n\r\nSTR;BASE\r\nENDSOURCETABLE\r\n"
                answer = Waits if match[1] == "tcp" else Stays if match[3] else Says(table)
                return f"{match[1]}://{match[2]}{Server(answer).place}{match[3]}"
            command = re.sub("(tcp|ntrip)://([^ @/]*@|)[^ /]+(/[A-Z]+|)", Place, command)
            command = command.replace("/dev/ttyACM0", self.far)
            start = self.StartRaw if self.far in command else Start
            process = start(*shlex.split(command, comments=True))
            if self.far in command:
                with open(self.near, "wb", buffering=0) as near:
                    near.write(Vtg)
            self.assertRegex(process.stdout.readline(), b"VTG|MOUNTPOINT", command)
            self.assertEqual(Interrupt(process)[0], 0, command)

    def test_options(self):
        for name, why in ((self.far + "?baud=9601", "9601"), (self.far + "?parity=even", "parity"),
                          ("/dev/null", "no serial line"), ("/dev/none", "No such file")):
            status, _, err = Run("serial:" + name)
            self.assertEqual((status, why in err), (1, True), err)


class Tcp(unittest.TestCase):
    def test_until_the_server_closes(self):
        with tempfile.TemporaryDirectory() as folder:
            server = Server(lambda _, connection: connection.sendall(Sample))
            record = folder + "/record"
            self.assertEqual(Run("tcp://" + server.place, "--record", record),
                             (0, LinesOf(Sample), ""))
            self.assertEqual(Content(record), Sample)
            status, _, err = Run("tcp://" + server.place, "--record", record)
            self.assertEqual((status, "refused" in err), (1, True), err)
            server = Server(lambda _, connection: connection.recv(1))
            status, _, err = Run("tcp://" + server.place, "--record", record)
            self.assertEqual((status, "exists" in err), (1, True), err)

    def test_closed_inside_a_frame(self):
        server = Server(lambda _, connection: connection.sendall(Vtg + Vtg[:12]))
        status, out, err = Run("tcp://" + server.place)
        self.assertEqual((status, out), (1, LinesOf(Vtg)))
        self.assertIn("inside a frame, 12 bytes", err)

    def test_no_place(self):
        for place, why in (("nowhere.invalid:1", "nowhere.invalid:1: "),
                           ("localhost", "port is missing"), ("localhost:0x", "no port"),
                           ("[::1", "missing")):
            status, _, err = Run("tcp://" + place)
            self.assertEqual((status, why in err), (1, True), err)

    def test_several_side_by_side(self):
        """Behind a file, in one table."""
        servers = Server(Waits), Server(Waits)
        with tempfile.TemporaryDirectory() as folder:
            with open(folder + "/file", "wb") as file:
                file.write(Vtg)
            process = Start(*("tcp://" + server.place for server in servers), "tcp://localhost:1",
                            folder + "/file", "--format", "csv", "--output", folder + "/out.csv")
            Await(process, "refused")
            Until(lambda: len([line for path in glob.glob(folder + "/out.csv.part*")
                               for line in Content(path).splitlines()]) == 4)
            self.assertEqual(Interrupt(process)[0], 1)
            heading, line = LinesOf(Vtg, "--format", "csv").splitlines(True)
            with open(folder + "/out.csv", "rb") as file:
                self.assertEqual(next(file), b"source," + heading)
                self.assertEqual(next(file), b"%s/file,%s" % (folder.encode(), line))
                self.assertEqual(sorted(file), sorted(
                    b"tcp://%s,%s" % (server.place.encode(), line) for server in servers))


class Caster(unittest.TestCase):
    """Of version 2, and answers of version 1."""

    def test_streams(self):
        pieces = [Chunk(Sample[i:i + 701]) for i in range(0, 7010, 701)]
        end = b"0\r\n\r\n"
        moved = b"HTTP/1.1 302 Found\r\nLocation: /there\r\nContent-Length: 0\r\n\r\n"
        for answers in ((Says(Chunked, *pieces, end),),
                        (Says(moved), Says(Chunked, *pieces, end)),
                        (Says(b"ICY 200 OK\r\n" + Sample[:7010]),),
                        (Says(b"IC", b"Y 200 OK\r\n\r\n", Sample[:7010]),),
                        (Says(Chunked, *pieces[:4]), Says(Chunked, *pieces[4:], end))):
            server = Server(*answers)
            with tempfile.TemporaryDirectory() as folder:
                process = Start(f"ntrip://{server.place}/BASE", "--record", folder + "/record",
                                "--output", folder + "/out")
                Await(process, "connecting again in 1")
                Until(lambda: os.path.getsize(folder + "/record") >= 7010)
                status, _, err = Interrupt(process)
                self.assertEqual(Content(folder + "/record"), Sample[:7010], err)
                self.assertEqual((status, Content(folder + "/out")), (0, LinesOf(Sample[:7010])))

    def test_refusals(self):
        for answer, why in (
                (b"HTTP/1.1 401 Unauthorized\r\nContent-Length: 0\r\n\r\n", "401: user or pass"),
                (b"HTTP/1.0 404 Not Found\r\n\r\n", "404: there is no such mountpoint"),
                (b"HTTP/1.1 503 Full\r\n\r\n", "answers 503 Full"),
                (b"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n<html>", "web page"),
                (b"<html>\r\n<body>", "web page"),
                (b"ERROR - Bad Password\r\n", "ERROR - Bad Password"),
                (b"SOURCETABLE 200 OK\r\n\r\nENDSOURCETABLE\r\n", "no such mountpoint"),
                (b"HTTP/1.1 200 OK\r\nContent-Type: gnss/sourcetable\r\n\r\n", "no such mountpo"),
                (Chunked + b"0\r\n\r\n", "no data of this mountpoint"),
                (b"", "answers nothing")):
            server = Server(Says(answer))
            status, out, err = Run(f"ntrip://me:secret@{server.place}/BASE")
            self.assertEqual((status, out, why in err), (1, b"", True), err)
            self.assertNotIn("secret", err)

    def test_no_hurry_after_a_refusal(self):
        server = Server(Says(Chunked, Chunk(Vtg)), Says(b"HTTP/1.1 404 Gone\r\n\r\n"))
        process = Start(f"ntrip://{server.place}/BASE")
        said = Await(process, "(?s)again in .*again in .*\n") + Interrupt(process)[2]
        pauses = re.findall("again in ([0-9]+) s", said)
        self.assertEqual(len(pauses), 2)
        self.assertLess(int(pauses[0]), 3)
        self.assertGreaterEqual(int(pauses[1]), 10)

    def test_passwords(self):
        def Digest(server, connection):
            Head(server, connection)
            connection.sendall(b'HTTP/1.1 401 No\r\nWWW-Authenticate: Digest realm="r", nonce="n"'
                               b'\r\nContent-Length: 0\r\n\r\n')
        netrc = tempfile.TemporaryDirectory()
        with open(netrc.name + "/.netrc", "w") as file:
            file.write("machine 127.0.0.1 login me password p:w@\n")
        for user, environment in (("me:p%3Aw%40@", {}),
                                  ("me@", {"NAVFRAME_NTRIP_PASSWORD": "p:w@"}),
                                  ("", {"HOME": netrc.name})):
            server = Server(Says(Chunked, Chunk(Vtg)))
            self.assertEqual(Run(f"ntrip://{user}{server.place}/B", "--first", "1", **environment),
                             (0, LinesOf(Vtg), ""))
            self.assertIn("Authorization: Basic " + base64.b64encode(b"me:p:w@").decode(),
                          server.heads[0])
        server = Server(Digest, Digest, Says(Chunked, Chunk(Vtg)))
        self.assertEqual(Run(f"ntrip://me:secret@{server.place}/B", "--first", "1")[0], 0)
        def Md5(text):
            return hashlib.md5(text.encode()).hexdigest()
        self.assertIn('response="%s"' % Md5(Md5("me:r:secret") + ":n:" + Md5("GET:/B")),
                      server.heads[2])
        netrc.cleanup()

    def ExpectGga(self, server, gga):
        """In the head and behind it, without anything that makes a request with a body of it."""
        line = r"\$(GPGGA,[0-9]{6}\.00,%s)\*([0-9A-F]{2})\r\n" % re.escape(gga)
        self.assertRegex(server.heads[0], "^GET /BASE HTTP/1.1\r\n(.*\r\n)*Ntrip-GGA: " + line)
        self.assertNotRegex(server.heads[0], "(?i)content-length|transfer-encoding|expect")
        match = re.fullmatch(line, server.said.decode())
        check = 0
        for c in match[1].encode():
            check ^= c
        self.assertEqual(check, int(match[2], 16))

    def test_position_and_tls(self):
        with tempfile.TemporaryDirectory() as folder:
            certificate, key = folder + "/certificate", folder + "/key"
            subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes",
                            "-days", "1", "-subj", "/CN=caster",
                            "-addext", "subjectAltName=IP:127.0.0.1",
                            "-keyout", key, "-out", certificate], check=True, capture_output=True)
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(certificate, key)
            for scheme, context in (("ntrip", None), ("ntrips", context)):
                server = Server(Stays, context=context)
                process = Start(f"{scheme}://{server.place}/BASE", "--position",
                                "-48.5,11.25,545.5", SSL_CERT_FILE=certificate)
                self.assertIn(b"VTG", process.stdout.readline())
                Until(lambda: server.said.endswith(b"\n"))
                Interrupt(process)
                server.join(timeout=10)
                self.ExpectGga(server, "4830.0000000,S,01115.0000000,E,1,10,1.0,545.500,M,0.0,M,,")
            server = Server(Stays, context=context)
            status, _, err = Run(f"ntrips://{server.place}/BASE")
            self.assertEqual((status, "certificate" in err), (1, True), err)

    def test_position_of_another_source(self):
        fix = b"$GPGGA,120000.00,4830.0,N,01115.0,W,1,12,0.7,545.5,M,47.0,M,,*70\r\n"
        def Receiver(_, connection):
            connection.sendall(fix)
            connection.recv(1)
        receiver, server = Server(Receiver), Server(Stays)
        process = Start("tcp://" + receiver.place, f"ntrip://{server.place}/BASE", "--kinds", "VTG")
        Until(lambda: b",4830.0000000,N,01115.0000000,W,1,10,1.0,545.500,M" in server.said)
        self.assertIn(b"VTG", process.stdout.readline())
        self.assertEqual(Interrupt(process)[1], b"")
        server.join(timeout=10)

    def test_sourcetable(self):
        table = (b"CAS;caster.example;2101;Example;Somewhere;0;DEU;48.5;11.25\r\n"
                 b"STR;BASE;Town;RTCM 3.3;1005(10),1077(1);2;GPS+GAL;NET;DEU;48.50;11.25;1;0;gen;"
                 b"none;B;N;9600;\r\nENDSOURCETABLE\r\n")
        for head in (b"SOURCETABLE 200 OK\r\nServer: x\r\n\r\n",
                     b"HTTP/1.1 200 OK\r\nContent-Type: gnss/sourcetable\r\n\r\n"):
            status, out, _ = Run("sources", "ntrip://" + Server(Says(head + table)).place)
            self.assertEqual(status, 0)
            self.assertRegex(out.decode(), "(?m)^BASE +Town +DEU +48.50 +11.25 +RTCM 3.3 "
                                           "+GPS\\+GAL +wanted +basic +1005\\(10\\),1077\\(1\\)$")
            self.assertIn(b"caster: caster.example 2101", out)
        page = b"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n<html>"
        status, _, err = Run("sources", "ntrip://" + Server(Says(page)).place)
        self.assertEqual((status, "web page" in err), (1, True), err)


class Rtklib(unittest.TestCase):
    def test_caster_of_version_1(self):
        if "NAVFRAME_OWN_NETWORK" not in os.environ:
            self.skipTest("no network of its own: unshare is not allowed here")
        heard, done = threading.Event(), threading.Event()
        def Feed(_, connection):
            while not heard.wait(0.05):
                connection.sendall(Vtg)
            for begin in range(0, len(Sample), 500):
                connection.sendall(Sample[begin:begin + 500])
                time.sleep(0.01)
            done.wait()
        caster = subprocess.Popen(
            ["str2str", "-in", "tcpcli://" + Server(Feed).place, "-out",
             "ntripc://:2101/BASE"], stderr=subprocess.DEVNULL)
        try:
            Until(lambda: socket.socket().connect_ex(("127.0.0.1", 2101)) == 0)
            process = Start("ntrip://127.0.0.1/BASE", "--format", "raw")
            whole = LinesOf(Sample, "--format", "raw")
            out = Read(process, len(Vtg))
            heard.set()
            while not out.endswith(whole):
                piece = process.stdout.read(4096)
                self.assertNotEqual(piece, b"")
                out += piece
            status, out, err = Interrupt(process)
            self.assertEqual((status, out, err), (0, b"", ""))
            status, _, err = Run("ntrip://127.0.0.1/NONE")
            self.assertEqual((status, "no such mountpoint" in err), (1, True), err)
        finally:
            done.set()
            caster.kill()
            caster.wait()


if __name__ == "__main__":
    for name in [name for name in os.environ if name.lower().endswith("_proxy")]:
        del os.environ[name]
    if "NAVFRAME_OWN_NETWORK" not in os.environ and \
            subprocess.run([*OwnNetwork, "true"], capture_output=True).returncode == 0:
        os.environ["NAVFRAME_OWN_NETWORK"] = "1"
        os.execvp(OwnNetwork[0], [*OwnNetwork, sys.executable, *sys.argv])
    unittest.main()
