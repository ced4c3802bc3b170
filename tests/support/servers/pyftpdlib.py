# An FTP server for the tests, started by start.sh with its place and its visitor.
import logging, sys
from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer
host, port, last, home, log, user, password = sys.argv[1:]
class Handler(FTPHandler):
    def decode(self, bytes):
        return bytes.decode("cp1252")
authorizer = DummyAuthorizer()
authorizer.add_user(user, password, home, perm="elradfmw")
authorizer.add_anonymous(home, perm="elradfmw")
Handler.authorizer = authorizer
Handler.auth_failed_timeout = 0
Handler.passive_ports = range(int(port) + 1, int(last))
logging.basicConfig(filename=log, level=logging.DEBUG, format="%(message)s",
                    encoding="utf8")
FTPServer((host, int(port)), Handler).serve_forever()
